#pragma once

#include <QLabel>

namespace penwright {

/// A label that steps back behind the others: its colour lies between text and background, in any palette.
class QuietLabel : public QLabel {
    Q_OBJECT

public:
    explicit QuietLabel(QWidget *parent = nullptr);
    explicit QuietLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void mixColour();
};

}  // namespace penwright
