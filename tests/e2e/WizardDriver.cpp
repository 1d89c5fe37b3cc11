// The window of the program with a pair of hands: obeys one JSON command a line from standard input, by
// clicks and key strokes alone, and answers each with one line that bears its number; the line with the
// number 0 comes unasked, when the window has opened. tests/e2e/wizard.py speaks to it.

#include "WizardView.h"

#include "core/app/StartUp.h"
#include "platform/Terminal.h"
#include "support/Json.h"
#include "support/LinkManager.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeySequence>
#include <QPixmap>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Zandrove;

namespace {

constexpr auto LookInterval = 20ms;

class Driver final : public QObject
{
public:
    explicit Driver(MainWindow &window)
        : m_window(window)
        , m_view(&window)
    {
        connect(&m_input, &Platform::InputLines::lineRead, this, [this](const QString &line) {
            // From an event of its own: a click may open a dialog, and then does not
            // return until it is closed.
            QTimer::singleShot(
                0, this, [this, line] { obey(parseJsonObject(line.toUtf8()).value_or(QJsonObject())); });
        });
        connect(&m_input, &Platform::InputLines::ended, qApp, &QApplication::quit);
        connect(&m_look, &QTimer::timeout, this, &Driver::lookAgain);
        m_look.setInterval(LookInterval);
        QTimer::singleShot(0, this, [this] { answer({{u"number"_s, 0}}, true); });
    }

private:
    void obey(const QJsonObject &command)
    {
        const QString action = command["do"_L1].toString();
        const QString name = command["name"_L1].toString();
        if (action == "await"_L1) {
            m_awaited = command;
            m_deadline.setRemainingTime(qint64(command["within"_L1].toDouble() * 1000));
            m_look.start();
        } else if (action == "picture"_L1) {
            answer(command, m_view.picture().save(name));
        } else if (action == "state"_L1) {
            answer(command, true);
        } else if (action == "type"_L1) {
            m_view.type(name);
            answer(command, true);
        } else if (action == "close"_L1) {
            answerLater(command);
            m_window.close();
        } else {
            answerLater(command);
            if (!perform(action, name))
                m_failed = true;
        }
    }

    bool perform(const QString &action, const QString &name)
    {
        if (action == "click"_L1)
            return m_view.click(name);
        if (action == "clickFolder"_L1)
            return m_view.clickFolder(name);
        if (action == "clickListEntry"_L1)
            return m_view.clickListEntry(name);
        if (action == "key"_L1) {
            const QKeySequence sequence(name);
            if (sequence.isEmpty())
                return false;
            m_view.press(sequence[0].key(), sequence[0].keyboardModifiers());
            return true;
        }
        return false;
    }

    [[nodiscard]] bool isThere(const QJsonObject &wanted) const
    {
        const auto shows = [this](const QString &pattern) {
            return !m_view.texts().filter(QRegularExpression(pattern)).isEmpty();
        };
        if (wanted.contains("page"_L1) && wanted["page"_L1].toInt() != m_view.page())
            return false;
        if (wanted.contains("dialog"_L1) && wanted["dialog"_L1].toString() != m_view.dialogTitle())
            return false;
        if (wanted.contains("text"_L1) && !shows(wanted["text"_L1].toString()))
            return false;
        if (!wanted.contains("enabled"_L1))
            return true;
        const QWidget *control = m_view.control(wanted["enabled"_L1].toString());
        return control && control->isEnabled();
    }

    void lookAgain()
    {
        const bool there = isThere(m_awaited);
        if (!there && !m_deadline.hasExpired())
            return;
        m_look.stop();
        answer(m_awaited, there);
    }

    /// Once the click has had its effect, or its effect is a dialog that goes on.
    void answerLater(const QJsonObject &command)
    {
        m_failed = false;
        QTimer::singleShot(0, this, [this, command] { answer(command, !m_failed); });
    }

    void answer(const QJsonObject &command, bool ok)
    {
        QJsonObject state = m_view.state();
        state["number"_L1] = command["number"_L1];
        state["ok"_L1] = ok;
        std::puts(compactJson(state).constData());
        std::fflush(stdout);
    }

    MainWindow &m_window;
    WizardView m_view;
    Platform::InputLines m_input;
    QTimer m_look;
    QJsonObject m_awaited;
    QDeadlineTimer m_deadline;
    bool m_failed = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    StartUp::setIdentity();
    StartUp::registerMetaTypes();
    LinkManager::instance().setLanguage(StartUp::initTranslation());
    application.setStyleSheet(StartUp::styleSheet());

    MainWindow window;
    const Platform::InterruptNotifier interrupts;
    QObject::connect(&interrupts, &Platform::InterruptNotifier::interrupted, &window,
                     &MainWindow::endProgram);
    window.show();
    const Driver driver(window);
    return QApplication::exec();
}
