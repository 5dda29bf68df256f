#include "desktop/toolkit_messages.h"

#include "platform/failure.h"
#include "platform/program_name.h"
#include "platform/text.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace ruvenmark {

namespace {

constexpr const char* kNoDisplay = "there is no display for a window; --headless needs none";

constexpr int kCannotRun = 2; // The status of a program that nothing can be done with.

bool IsWithoutPlatform(const QString& message)
{
    return message.contains(QLatin1String("platform plugin")) || message.contains(QLatin1String("display"));
}

// The fatal message itself is many lines long.
void Handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type != QtFatalMsg)
        return;
    const std::string line = IsWithoutPlatform(message) ? kNoDisplay : TerminalText(message.toStdString());
    std::fprintf(stderr, "%s%s\n", std::string(kProgramWord).c_str(), line.c_str());
    std::_Exit(kCannotRun); // Nothing of the program stands yet, or nothing of it can be relied on.
}

} // namespace

void KeepToolkitQuiet()
{
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES") && qEnvironmentVariableIsEmpty("QT_DEBUG_PLUGINS"))
        qInstallMessageHandler(Handle);
}

void RequireDisplay()
{
    for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return;
    throw Failure(kNoDisplay);
}

} // namespace ruvenmark
