#include "platform/Terminal.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

void say(const QByteArray &text)
{
    std::fputs(text.constData(), stdout);
    std::fflush(stdout);
}

/// Prints every line of standard input in brackets, and a dot at its end.
int echoLines()
{
    Platform::InputLines lines;
    QObject::connect(&lines, &Platform::InputLines::lineRead, qApp,
                     [](const QString &line) { say('[' + line.left(40).toUtf8() + ']'); });
    QObject::connect(&lines, &Platform::InputLines::ended, qApp, [] {
        say(".");
        QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

/// Copies standard input, which a caller may have left empty.
int copyInput()
{
    for (int character = std::getchar(); character != EOF; character = std::getchar())
        std::putchar(character);
    return EXIT_SUCCESS;
}

/// What the words ask for, one behind the other.
int obey(QStringList words)
{
    while (!words.isEmpty()) {
        const QString action = words.takeFirst();
        if (action == "copy"_L1)
            return copyInput();
        if (action == "lines"_L1)
            return echoLines();
        const QString argument = words.takeFirst();
        if (action == "exit"_L1)
            return argument.toInt();
        if (action == "say"_L1)
            say(argument.toUtf8());
        else if (action == "complain"_L1)
            std::fputs(argument.toUtf8().constData(), stderr);
        else if (action == "wait"_L1)
            std::this_thread::sleep_for(std::chrono::milliseconds(argument.toInt()));
    }
    return EXIT_SUCCESS;
}

} // namespace

/// exit CODE | say TEXT | complain TEXT | wait MILLISECONDS | copy | lines
int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    return Platform::endProcess(obey(QCoreApplication::arguments().mid(1)));
}
