#include "platform/Terminal.h"

#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace Zandrove::Platform {

namespace {

constexpr std::array InterruptSignals = {SIGINT, SIGTERM, SIGHUP};

// A signal handler reaches nothing but these.
std::array<int, 2> wakePipe = {-1, -1};
volatile std::sig_atomic_t interruptSeen = 0;

void onInterruptSignal(int)
{
    if (interruptSeen != 0)
        _exit(InterruptedExitCode);
    interruptSeen = 1;
    const int savedError = errno;
    const char wake = 1;
    [[maybe_unused]] const ssize_t written = write(wakePipe[1], &wake, 1);
    errno = savedError;
}

std::array<struct sigaction, InterruptSignals.size()> formerActions = {};

/// Signals that whoever started the program wants ignored stay so: "nohup" relies on it.
void handleInterrupts()
{
    struct sigaction action = {};
    action.sa_handler = onInterruptSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < InterruptSignals.size(); ++i) {
        sigaction(InterruptSignals[i], nullptr, &formerActions[i]);
        if (formerActions[i].sa_handler != SIG_IGN)
            sigaction(InterruptSignals[i], &action, nullptr);
    }
}

void restoreInterrupts()
{
    for (std::size_t i = 0; i < InterruptSignals.size(); ++i)
        sigaction(InterruptSignals[i], &formerActions[i], nullptr);
}

int descriptor(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return STDIN_FILENO;
    case StandardStream::Output:
        return STDOUT_FILENO;
    case StandardStream::Error:
        return STDERR_FILENO;
    }
    return -1;
}

} // namespace

bool isTerminal(StandardStream stream)
{
    return isatty(descriptor(stream)) == 1;
}

int terminalColumns()
{
    winsize size = {};
    if (!isTerminal(StandardStream::Output) || ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0)
        return 0;
    constexpr int UsualColumns = 80; // a terminal that doesn't know its size says 0
    return size.ws_col > 0 ? size.ws_col : UsualColumns;
}

void discardTypedInput()
{
    if (isTerminal(StandardStream::Input))
        tcflush(STDIN_FILENO, TCIFLUSH);
}

int endProcess(int exitCode)
{
    return exitCode;
}

InterruptNotifier::InterruptNotifier(QObject *parent)
    : QObject(parent)
{
    if (pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        Q_EMIT interrupted();
    });
    handleInterrupts();
}

InterruptNotifier::~InterruptNotifier()
{
    if (m_notifier != nullptr)
        restoreInterrupts();
    for (int &end : wakePipe) {
        if (end >= 0)
            close(end);
        end = -1;
    }
}

InputLines::InputLines(QObject *parent)
    : QObject(parent)
    , m_notifier(new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &InputLines::readAvailable);
}

InputLines::~InputLines() = default;

void InputLines::readAvailable()
{
    std::array<char, 4096> chunk;
    const ssize_t count = read(STDIN_FILENO, chunk.data(), chunk.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0)
        m_notifier->setEnabled(false);
    takeBytes(QByteArray(chunk.data(), std::max<qsizetype>(count, 0)));
}

} // namespace Zandrove::Platform
