#include "platform/x11/qt/QtServerLoss.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

#include <fmt/format.h>

#include "platform/x11/ServerLoss.h"

namespace quorvel::x11 {

namespace {

bool isServerLoss(const QString& message)
{
    return message.startsWith("The X11 connection broke");
}

void print(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    fmt::print(stderr, "{}\n", qFormatLogMessage(type, context, message).toStdString());
}

// What follows the message is exit() from the midst of Qt; what it would destroy is still in use.
void endWithLine(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isServerLoss(message)) {
        fmt::print(stderr, "{}\n", serverLossLine);
        std::_Exit(EXIT_FAILURE);
    }
    print(type, context, message);
}

void endInSilence(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isServerLoss(message)) {
        std::_Exit(EXIT_FAILURE);
    }
    print(type, context, message);
}

} // namespace

void sayServerLossInOneLine()
{
    qInstallMessageHandler(endWithLine);
}

void sayNoServerLoss()
{
    qInstallMessageHandler(endInSilence);
}

} // namespace quorvel::x11
