#pragma once

#include <QAccessible>

class QAbstractItemView;
class QComboBox;
class QWidget;

namespace penwright {

/// Has screen readers told that a widget plays a role which the toolkit does not see in its class. To be called by its
/// constructor, before anything is told of the widget.
///
/// From the first call on, they also find the windows that live in a window of another process: the toolkit leaves
/// them out of the windows of its program, so that an embedded wizard would not exist for them. And a plain frame is a
/// group for them, where the toolkit's word for it is read as that for a window. And nothing is told of the text of a
/// box before the box has been told to have the focus: the toolkit tells first that the text is marked, and a reader
/// that hears of the text of a box which it does not know yet says nothing more of it, so that an empty box is silence.
/// And what has the focus is told once more after a list or menu over its window has closed.
void setScreenReaderRole(QWidget &widget, QAccessible::Role role);

/// Sets what is told of a widget beside its name, when it is something new: each change may be spoken.
void describe(QWidget &widget, const QString &description);

/// Tells the current item of a view that has just got the focus, of which the toolkit tells the view alone.
void tellCurrentItem(QAbstractItemView &view);

/// Tells the chosen item of a list that is closed, where the toolkit tells a new name of the list, which readers pass
/// over.
void tellChosenItem(QComboBox &list);

/// Tells what has the focus in a window that has become active, once more and a little later: where a dialog closes
/// over a window in another program's, that program's own window is told as active on the way, and would have the last
/// word.
void tellFocusSoon(QWidget &window);

}  // namespace penwright
