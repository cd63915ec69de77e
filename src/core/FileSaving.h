#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace penwright {

class Dialogs;
class TextFiles;

/// Makes the text of a file by appending to an empty one, without the line end of the last line.
using TextMaker = std::function<void(std::string &text)>;

/// Makes the text of a file and writes it, with `lineEnd` behind its last line, to `path`. An error, lack of memory
/// among them, is told in one message with OK and Cancel. True: the file was written, at once or on the retry that OK
/// asks for. False: the user chose Cancel, or the program is unloading. An error on the retry is raised to the caller.
/// The retry does not make the text again: what an error while making has left is what it writes.
bool saveFile(std::string_view path, const TextMaker &make, std::string_view lineEnd, TextFiles &files,
              Dialogs &dialogs);

}  // namespace penwright
