#include "controls/ClipboardText.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "platform/qt/QtText.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

constexpr qsizetype kMostCharacters = 64 * 1024 * 1024;  // twice a million of the longest numbers

}  // namespace

std::string readClipboardText()
{
    // Asked first what it has: an owner that does not answer is then waited for once, not for each kind of text.
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (!data || !data->hasFormat("text/plain"))
        return {};
    const QString text = data->text();
    if (text.size() > kMostCharacters)
        throw RunTimeError(7, "The clipboard holds " + std::to_string(text.size() / (1024 * 1024)) +
                                  " million characters, far more than a table can have. Nothing was pasted.");
    return text.toStdString();
}

void writeClipboardText(std::string_view text)
{
    QClipboard &clipboard = *QApplication::clipboard();
    clipboard.clear();
    clipboard.setText(toQString(text));
}

}  // namespace penwright
