// runmessages.cpp -- the list of what a run of several files has to tell.
#include "run/runmessages.h"

#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <utility>

RunMessagesRecord RunMessages;

static const SharedRecord shared[] = {
    {"RunMessages", Kind::Run, RunMessages},
};

bool OffersList(Buttons buttons, Icon icon)
{
    return RunMessages.Offered && buttons == OkOnly && icon != Announcement;
}

bool CollectMessage(const Text& words, Buttons buttons, Icon icon)
{
    if (!RunMessages.Collecting || !OffersList(buttons, icon))
        return false;
    RunMessage message = RunMessages.Place ? RunMessages.Place() : RunMessage();
    message.Words = words;
    RunMessages.List.push_back(std::move(message));
    return true;
}

Text RunMessagesText()
{
    Text lines;
    for (const RunMessage& message : RunMessages.List) {
        Text words = message.Words;
        std::replace_if(
            words.begin(), words.end(), [](char letter) { return letter == '\r' || letter == '\n'; }, ' ');
        lines += message.File + "\t" + (message.Page > 0 ? PlainNumber(message.Page) : "") + "\t" + words + CrLf;
    }
    return lines;
}

MessagesOfRun::MessagesOfRun(int files) : before(std::exchange(RunMessages, {}))
{
    RunMessages.Offered = files > 1;
}

MessagesOfRun::~MessagesOfRun()
{
    RunMessages.Offered = RunMessages.Collecting = false;
    if (!RunMessages.List.empty())
        Platform.ShowRunMessages();
    RunMessages = std::move(before);
}
