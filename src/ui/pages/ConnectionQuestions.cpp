#include "ui/pages/ConnectionQuestions.h"

#include "core/engine/TransferEngine.h"
#include "support/PrintableText.h"
#include "ui/Theme.h"
#include "ui/pages/ConnectionPage.h" // whose the texts are

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr auto DeafTime = 700ms;

/// A question that is deaf at first. Escape and the frame's own button are a no, as the button is.
class QuestionBox final : public QMessageBox
{
public:
    QuestionBox(const QString &text, const QString &address, QWidget *parent)
        : QMessageBox(Question, ConnectionPage::tr("Connection Request"), text, Yes | No, parent)
    {
        setTextFormat(Qt::PlainText);
        setInformativeText(address);
        setStyleSheet(Theme::messageBoxStyle());
        button(No)->setStyleSheet(Theme::buttonStyle(noLook()));
        setDefaultButton(No);
        setAttribute(Qt::WA_DeleteOnClose);
        setModal(true);
        setDeaf(true);
        QTimer::singleShot(DeafTime, this, [this] {
            setDeaf(false);
            button(No)->setFocus();
        });
    }

    /// Closes the box as no user can.
    void withdraw()
    {
        m_deaf = false;
        done(No);
    }

    void done(int result) override
    {
        if (!m_deaf)
            QMessageBox::done(result);
    }

private:
    static Theme::ButtonLook noLook()
    {
        Theme::ButtonLook look;
        look.background = Theme::Colour::White;
        look.hover = Theme::Colour::Hover;
        look.text = Theme::Colour::TextSecondary;
        look.disabledText = Theme::Colour::TextFaint;
        look.border = Theme::Colour::BorderStrong;
        look.fontPixels = 13;
        look.padding = "7px 24px"_L1;
        look.radius = 6;
        look.minimumWidth = 80;
        return look;
    }

    void setDeaf(bool deaf)
    {
        m_deaf = deaf;
        const auto all = buttons();
        for (QAbstractButton *each : all)
            each->setEnabled(!deaf);
    }

    bool m_deaf = false;
};

} // namespace

ConnectionQuestions::ConnectionQuestions(TransferEngine *engine, QWidget *page)
    : QObject(page)
    , m_engine(engine)
    , m_page(page)
{
    connect(m_engine, &TransferEngine::connectionRequested, this, &ConnectionQuestions::onRequested);
    connect(m_engine, &TransferEngine::questionEnded, this, &ConnectionQuestions::onEnded);
}

/// The question runs from an event of its own: this signal comes from within the reading of a socket.
void ConnectionQuestions::onRequested()
{
    const QList<ConnectionQuestion> open = m_engine->openQuestions();
    if (open.isEmpty())
        return;
    m_waiting.append(open.last());
    QMetaObject::invokeMethod(this, &ConnectionQuestions::askNext, Qt::QueuedConnection);
}

void ConnectionQuestions::onEnded(quint64 number)
{
    m_waiting.removeIf([number](const ConnectionQuestion &waiting) { return waiting.number == number; });
    if (!m_box || m_shown.number != number)
        return;
    // Whoever hears of it may open a dialog: not from within the end of a socket.
    QMetaObject::invokeMethod(
        this,
        [this, number] {
            if (!m_box || m_shown.number != number)
                return;
            m_box->disconnect(this);
            static_cast<QuestionBox *>(m_box.data())->withdraw();
            m_box.clear();
            Q_EMIT withdrawn(m_shown.name);
            askNext();
        },
        Qt::QueuedConnection);
}

void ConnectionQuestions::askNext()
{
    while (!m_box && !m_waiting.isEmpty()) {
        const ConnectionQuestion question = m_waiting.takeFirst();
        if (isOpen(question.number))
            ask(question);
    }
}

void ConnectionQuestions::ask(const ConnectionQuestion &question)
{
    m_shown = question;
    const QString name = ConnectionPage::shownName(question.name, m_page);
    m_box = new QuestionBox(
        ConnectionPage::tr("'%1' wants to connect to this PC.\n\nDo you want to accept?").arg(name),
        ConnectionPage::tr("Its address: %1").arg(printable(question.ip)), m_page);
    connect(m_box, &QMessageBox::finished, this,
            [this, question](int button) { onAnswered(question, button == QMessageBox::Yes); });
    // Not exec(): the window may go while the question is open.
    m_box->show();
    Q_EMIT asked(question.name);
}

void ConnectionQuestions::onAnswered(const ConnectionQuestion &question, bool yes)
{
    m_box.clear();
    if (!isOpen(question.number)) {
        Q_EMIT withdrawn(question.name);
    } else if (yes) {
        m_engine->acceptConnection(m_engine->verifyCode(), question.number);
        Q_EMIT accepted(question.name);
    } else {
        m_engine->rejectConnection(question.number);
        Q_EMIT rejected();
    }
    askNext();
}

bool ConnectionQuestions::isOpen(quint64 number) const
{
    const QList<ConnectionQuestion> open = m_engine->openQuestions();
    return std::any_of(open.cbegin(), open.cend(),
                       [number](const ConnectionQuestion &question) { return question.number == number; });
}

} // namespace Zandrove
