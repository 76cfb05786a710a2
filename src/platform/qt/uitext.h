// uitext.h -- texts at the edge to the windows: Windows-1252 inside, Unicode outside.
#pragma once

#include "session/text.h"

#include <QString>

inline QString ToUi(std::string_view text)
{
    return QString::fromStdString(ToUtf8(text));
}

inline Text FromUi(const QString& text)
{
    return FromUtf8(text.toStdString());
}
