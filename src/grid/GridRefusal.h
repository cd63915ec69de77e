#pragma once

#include <QObject>

#include <optional>

#include "platform/Dialogs.h"

namespace penwright {

/// A refused text on its way to the user: told in one message once the event that committed it is over, a mouse button
/// that is held down has been released and no dialog is open. Nothing is told while the program unloads.
class GridRefusal : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void setDialogs(Dialogs &dialogs) { m_dialogs = &dialogs; }

    /// Has the refusal of a cell's text told; of several at once the first stands.
    void tell(int row, int column, const MessageBox &box, bool afterRelease);

    /// Whether a refusal has not been told yet.
    bool isPending() const { return m_pending.has_value(); }

    /// Nothing is told any more.
    void forget() { m_pending.reset(); }

signals:
    /// The message was read; the cell wants the user's attention back.
    void told(int row, int column);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Pending {
        int row;
        int column;
        MessageBox box;
    };

    void tellLater();
    void tellNow();

    Dialogs *m_dialogs = nullptr;
    std::optional<Pending> m_pending;
};

}  // namespace penwright
