#include "platform/Terminal.h"

#include <qt_windows.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <functional>
#include <mutex>
#include <thread>

namespace Zandrove::Platform {

namespace {

HANDLE handleOf(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return GetStdHandle(STD_INPUT_HANDLE);
    case StandardStream::Output:
        return GetStdHandle(STD_OUTPUT_HANDLE);
    case StandardStream::Error:
        return GetStdHandle(STD_ERROR_HANDLE);
    }
    return INVALID_HANDLE_VALUE;
}

/// Makes the console take UTF-8 and control sequences, as a terminal does elsewhere, for as long as the
/// program runs.
class ConsoleSetup final
{
public:
    ConsoleSetup()
        : m_codePage(GetConsoleOutputCP())
    {
        if (m_codePage != 0)
            SetConsoleOutputCP(CP_UTF8);
        for (Output &output : m_outputs) {
            output.isConsole = GetConsoleMode(output.handle, &output.mode) != 0;
            if (output.isConsole)
                SetConsoleMode(output.handle, output.mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        }
    }
    ~ConsoleSetup() { restore(); }
    ConsoleSetup(const ConsoleSetup &) = delete;
    ConsoleSetup &operator=(const ConsoleSetup &) = delete;

    /// What runs in this console next gets it as it was.
    void restore() const
    {
        if (m_codePage != 0)
            SetConsoleOutputCP(m_codePage);
        // The last one first: both may be the same screen.
        for (auto output = m_outputs.rbegin(); output != m_outputs.rend(); ++output) {
            if (output->isConsole)
                SetConsoleMode(output->handle, output->mode);
        }
    }

private:
    struct Output
    {
        HANDLE handle = INVALID_HANDLE_VALUE;
        DWORD mode = 0;
        bool isConsole = false;
    };

    UINT m_codePage;
    std::array<Output, 2> m_outputs = {
        {{handleOf(StandardStream::Output)}, {handleOf(StandardStream::Error)}}};
};

const ConsoleSetup consoleSetup;

// The system calls the handler on a thread of its own.
std::mutex notifierMutex;
InterruptNotifier *currentNotifier = nullptr;
std::atomic_bool interruptSeen = false;

/// Ends the process without the waits of the ordinary end.
void endAtOnce(int exitCode)
{
    consoleSetup.restore();
    TerminateProcess(GetCurrentProcess(), UINT(exitCode));
}

BOOL WINAPI onConsoleEvent(DWORD event)
{
    if (interruptSeen.exchange(true))
        endAtOnce(InterruptedExitCode);
    {
        const std::scoped_lock lock(notifierMutex);
        if (currentNotifier != nullptr)
            QMetaObject::invokeMethod(currentNotifier, &InterruptNotifier::interrupted, Qt::QueuedConnection);
    }
    // The process is ended as soon as this returns; it gets the time that the system grants.
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT)
        Sleep(INFINITE);
    return TRUE;
}

/// What a blocked read knows of the object that waits for it. The object may go first.
class InputChannel final : public std::enable_shared_from_this<InputChannel>
{
public:
    using Deliver = std::function<void(const QByteArray &bytes)>;

    InputChannel(QObject &receiver, Deliver deliver)
        : m_receiver(&receiver)
        , m_deliver(std::move(deliver))
    {
    }

    /// Hands `bytes` to the receiver's thread and waits until it has taken them; no bytes mean the end. False
    /// where nobody waits any more.
    [[nodiscard]] bool send(const QByteArray &bytes)
    {
        std::unique_lock lock(m_mutex);
        if (m_receiver == nullptr)
            return false;
        m_taken = false;
        const auto take = [channel = shared_from_this(), bytes] { channel->take(bytes); };
        QMetaObject::invokeMethod(m_receiver, take, Qt::QueuedConnection);
        m_changed.wait(lock, [this] { return m_taken || m_receiver == nullptr; });
        return m_receiver != nullptr;
    }

    void close()
    {
        const std::scoped_lock lock(m_mutex);
        m_receiver = nullptr;
        m_changed.notify_all();
    }

private:
    void take(const QByteArray &bytes)
    {
        m_deliver(bytes);
        const std::scoped_lock lock(m_mutex);
        m_taken = true;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    QObject *m_receiver;
    Deliver m_deliver;
    bool m_taken = false;
};

/// The next characters that somebody types, in UTF-8; none at the end, which Ctrl-Z means.
QByteArray readConsole(HANDLE input)
{
    constexpr wchar_t EndMark = 0x1a;
    std::array<wchar_t, 4096> text = {};
    DWORD count = 0;
    do {
        SetLastError(ERROR_SUCCESS);
        if (ReadConsoleW(input, text.data(), DWORD(text.size()), &count, nullptr) == 0)
            return {};
    } while (count == 0 && GetLastError() == ERROR_OPERATION_ABORTED); // that was Ctrl-C
    if (count > 0 && text.front() == EndMark)
        return {};
    return QString::fromWCharArray(text.data(), int(count)).toUtf8();
}

/// The next bytes of standard input; none at its end.
QByteArray readInput()
{
    const HANDLE input = handleOf(StandardStream::Input);
    if (isTerminal(StandardStream::Input))
        return readConsole(input);
    QByteArray bytes(4096, Qt::Uninitialized);
    DWORD count = 0;
    if (ReadFile(input, bytes.data(), DWORD(bytes.size()), &count, nullptr) == 0)
        return {};
    return bytes.first(qsizetype(count));
}

void readUntilEnd(const std::shared_ptr<InputChannel> &channel)
{
    QByteArray bytes;
    do
        bytes = readInput();
    while (channel->send(bytes) && !bytes.isEmpty());
}

} // namespace

bool isTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

void discardTypedInput()
{
    if (isTerminal(StandardStream::Input))
        FlushConsoleInputBuffer(handleOf(StandardStream::Input));
}

int terminalColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (GetConsoleScreenBufferInfo(handleOf(StandardStream::Output), &info) == 0)
        return 0;
    return std::max(info.srWindow.Right - info.srWindow.Left + 1, 1);
}

int endProcess(int exitCode)
{
    std::fflush(nullptr);
    endAtOnce(exitCode);
    return exitCode;
}

InterruptNotifier::InterruptNotifier(QObject *parent)
    : QObject(parent)
{
    const std::scoped_lock lock(notifierMutex);
    currentNotifier = this;
    SetConsoleCtrlHandler(onConsoleEvent, TRUE);
}

InterruptNotifier::~InterruptNotifier()
{
    SetConsoleCtrlHandler(onConsoleEvent, FALSE);
    const std::scoped_lock lock(notifierMutex);
    currentNotifier = nullptr;
}

InputLines::InputLines(QObject *parent)
    : QObject(parent)
{
    const auto channel =
        std::make_shared<InputChannel>(*this, [this](const QByteArray &bytes) { takeBytes(bytes); });
    connect(this, &QObject::destroyed, this, [channel] { channel->close(); });
    // Nothing can end a read that waits for a console, so the thread is left to itself
    // and ends with the process.
    std::thread(readUntilEnd, channel).detach();
}

InputLines::~InputLines() = default;

} // namespace Zandrove::Platform
