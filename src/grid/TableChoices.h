#pragma once

#include <QWidget>

#include "grid/TableReading.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace penwright {

/// The boxes in which a user says how a text with a table is read.
class TableChoices : public QWidget {
    Q_OBJECT

public:
    explicit TableChoices(QWidget *parent = nullptr);

    /// Shows how a text is read; tells no change.
    void setReading(const TableReading &reading);

    TableReading reading() const;

    /// What is said under the choice of the unit.
    void sayOfUnit(const QString &sentence);

signals:
    /// The user has chosen something else.
    void changed();

private:
    QComboBox *addList(QFormLayout &form, const char *name, const QString &label, const QStringList &entries);
    QCheckBox *addCheck(QFormLayout &form, const char *name, const QString &text);
    void offerAngles();

    QComboBox *m_separator;
    QComboBox *m_decimal;
    QComboBox *m_thousands;
    QSpinBox *m_skip;
    QCheckBox *m_angleRow;
    QCheckBox *m_angleColumn;
    QComboBox *m_direction;
    QComboBox *m_unit;
    QLabel *m_unitNote;
};

}  // namespace penwright
