#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

class QSocketNotifier;

/// The terminal, or whatever stands in its place, that a program without a window talks through.
namespace Zandrove::Platform {

/// What a process ends with that a second interrupt ended.
constexpr int InterruptedExitCode = 130;

enum class StandardStream { Input, Output, Error };

[[nodiscard]] bool isTerminal(StandardStream stream);

/// Columns of the terminal on standard output; 0 where standard output is no terminal.
[[nodiscard]] int terminalColumns();

/// Forgets what was typed at the terminal on standard input and has not been read yet. Without a terminal
/// nothing happens.
void discardTypedInput();

/// The last thing a program without a window does: makes sure that all output has left, and gives back
/// `exitCode` for main to return. On Windows it does not come back: the process ends there and then, because
/// the ordinary end waits for threads of the system's own libraries, which now and then wait for it.
[[nodiscard]] int endProcess(int exitCode);

/// Turns the first request to end the program (Ctrl-C, a polite kill, a closed terminal) into a signal on the
/// thread that made the object. A second request ends the process at once with
/// InterruptedExitCode.
///
/// One object per process.
class InterruptNotifier final : public QObject
{
    Q_OBJECT

public:
    explicit InterruptNotifier(QObject *parent = nullptr);
    ~InterruptNotifier() override;

Q_SIGNALS:
    void interrupted();

private:
    QSocketNotifier *m_notifier = nullptr;
};

/// Lines of standard input, read as they come without ever blocking the event loop.
///
/// A line longer than 64 KiB is not delivered. `ended` is emitted once, when there is nothing more to read.
class InputLines final : public QObject
{
    Q_OBJECT

public:
    explicit InputLines(QObject *parent = nullptr);
    ~InputLines() override;

Q_SIGNALS:
    void lineRead(const QString &line); ///< without its line end
    void ended();

private:
    void readAvailable();
    void takeBytes(const QByteArray &bytes); ///< what was read next; nothing means the end
    void deliverLines();

    QSocketNotifier *m_notifier = nullptr;
    QByteArray m_pending;
    bool m_dropping = false; ///< in the rest of a line that was too long
};

} // namespace Zandrove::Platform
