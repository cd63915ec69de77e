#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/Dialogs.h"

namespace penwright::test {

/// Dialogs that show nothing: answers are taken from a queue, and a transcript keeps what was asked.
/// With an empty queue a message is answered Ok and a save dialog is cancelled.
class FakeDialogs : public Dialogs {
public:
    Answer show(const MessageBox &box) override
    {
        transcript += "[" + box.title + "|" + std::to_string(box.flags) + "] " + box.text + "\n";
        if (onShow)
            onShow(box);
        if (answers.empty())
            return Answer::Ok;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::optional<std::string> chooseSaveName(const SaveNameQuestion &question) override
    {
        transcript += "[save|" + question.title + "|" + question.filter + "|" + question.defaultSuffix + "]\n";
        proposedName = question.proposedName;
        if (onAskName)
            onAskName();
        if (names.empty())
            return std::nullopt;
        const std::optional<std::string> name = names.front();
        names.pop_front();
        return name;
    }

    std::optional<std::string> chooseOpenName(const OpenNameQuestion &question) override
    {
        transcript += "[open|" + question.title + "|" + question.filter + "]\n";
        if (names.empty())
            return std::nullopt;
        const std::optional<std::string> name = names.front();
        names.pop_front();
        return name;
    }

    std::string transcript;
    std::string proposedName;  ///< by the question asked last
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> names;
    std::function<void(const MessageBox &)> onShow;
    std::function<void()> onAskName;
};

}  // namespace penwright::test
