#include "ui/pages/CodeCards.h"

#include "support/NetworkAdapters.h"
#include "ui/pages/AddressEntry.h"
#include "ui/pages/CodeEdit.h"
#include "ui/pages/ConnectionPage.h" // whose the texts are
#include "ui/pages/PageCard.h"
#include "ui/widgets/Labels.h"

#include <QAbstractSocket>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr int CodeLength = 4;
constexpr int Width = 280;

/// A row at the end of `column` that keeps what is added to it in the middle.
QHBoxLayout *addCentredRow(QVBoxLayout *column)
{
    auto *centred = new QHBoxLayout;
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    centred->addStretch();
    centred->addLayout(row);
    centred->addStretch();
    column->addLayout(centred);
    return row;
}

QLabel *createCodeLabel()
{
    QLabel *label = makeLabel(u"-"_s, 24, Colour::Primary, Theme::Bold);
    label->setObjectName(u"codeLabel"_s);
    label->setStyleSheet(label->styleSheet() + Theme::boxStyle("QLabel"_L1, Colour::White, 10));
    label->setFixedSize(48, 56);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

/// Those by which another PC may reach this one.
QStringList ownAddresses()
{
    constexpr qsizetype Most = 3;
    QStringList result;
    const QList<NetworkAdapter> adapters = systemNetworkAdapters();
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || !adapter.running || adapter.loopback)
            continue;
        for (const AdapterAddress &address : adapter.addresses) {
            if (address.ip.protocol() == QAbstractSocket::IPv4Protocol && result.size() < Most)
                result.append(address.ip.toString());
        }
    }
    return result;
}

} // namespace

CodeCards::CodeCards(QWidget *parent)
    : QWidget(parent)
{
    m_link = makeSmallButton(QString(), linkButtonStyle());
    m_link->setObjectName(u"addressLink"_s);
    connect(m_link, &QPushButton::clicked, this, [this] { showAddress(m_address->isHidden()); });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createOwnCard());
    layout->addSpacing(16);
    layout->addWidget(createOtherCard());
    layout->addSpacing(8);
    layout->addWidget(m_link, 0, Qt::AlignHCenter);
    layout->addStretch();
    setFixedWidth(Width);
    showAddress(false);
}

QWidget *CodeCards::createOwnCard()
{
    auto *card = new QWidget;
    QVBoxLayout *layout = makePageCard(card, Theme::gradient(Colour::BlueTint, Colour::IndigoTintStrong));
    layout->addWidget(
        makeCentredLabel(ConnectionPage::tr("Your Verification Code"), 14, Colour::Text, Theme::SemiBold));
    QHBoxLayout *row = addCentredRow(layout);
    for (int i = 0; i < CodeLength; ++i) {
        m_labels.append(createCodeLabel());
        row->addWidget(m_labels.constLast());
    }
    layout->addWidget(
        makeCentredLabel(ConnectionPage::tr("Show this code to the other PC"), 12, Colour::TextMuted));
    m_addresses = makeCentredLabel(QString(), 12, Colour::TextMuted);
    layout->addWidget(m_addresses);
    return card;
}

QWidget *CodeCards::createOtherCard()
{
    auto *card = new QWidget;
    QVBoxLayout *layout = makePageCard(card);
    m_codeEntry = createCodeEntry();
    m_address = new AddressEntry;
    layout->addWidget(m_codeEntry);
    layout->addWidget(m_address);
    return card;
}

QWidget *CodeCards::createCodeEntry()
{
    m_connect = new QPushButton(ConnectionPage::tr("Connect"));
    m_connect->setStyleSheet(Theme::buttonStyle(Theme::primaryButton()));
    m_connect->setCursor(Qt::PointingHandCursor);
    m_connect->setObjectName(u"connectButton"_s);
    m_connect->setEnabled(false);
    connect(m_connect, &QPushButton::clicked, this, &CodeCards::onEntered);

    auto *entry = new QWidget;
    auto *layout = new QVBoxLayout(entry);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(
        makeCentredLabel(ConnectionPage::tr("Or Enter Their Code"), 14, Colour::Text, Theme::SemiBold));
    QHBoxLayout *row = addCentredRow(layout);
    for (int i = 0; i < CodeLength; ++i)
        addEdit(row);
    layout->addWidget(m_connect);
    return entry;
}

void CodeCards::addEdit(QBoxLayout *row)
{
    auto *edit = new CodeEdit;
    const int index = int(m_edits.size());
    edit->setAccessibleName(ConnectionPage::tr("Their code, character %1").arg(index + 1));
    connect(edit, &QLineEdit::textChanged, this,
            [this, index](const QString &text) { onEdited(index, text); });
    connect(edit, &QLineEdit::returnPressed, this, &CodeCards::onEntered);
    m_edits.append(edit);
    row->addWidget(edit);
}

void CodeCards::setOwnCode(const QString &code)
{
    const qsizetype shown = std::min(code.size(), m_labels.size());
    for (qsizetype i = 0; i < shown; ++i)
        m_labels[i]->setText(code.at(i));
    const QStringList addresses = ownAddresses();
    m_addresses->setText(ConnectionPage::tr("Address of this PC: %1").arg(addresses.join(", "_L1)));
    m_addresses->setVisible(!addresses.isEmpty());
}

void CodeCards::clearEntries()
{
    for (QLineEdit *edit : std::as_const(m_edits))
        edit->clear();
    m_address->clear();
}

void CodeCards::onEdited(int index, const QString &text)
{
    if (!text.isEmpty() && index < m_edits.size() - 1)
        m_edits[index + 1]->setFocus();
    const bool complete = enteredCode().size() == m_edits.size();
    m_connect->setEnabled(complete);
    if (complete)
        m_connect->setFocus();
}

void CodeCards::onEntered()
{
    const QString code = enteredCode();
    if (code.size() == m_edits.size())
        Q_EMIT codeEntered(code);
}

QString CodeCards::enteredCode() const
{
    QString code;
    for (const QLineEdit *edit : m_edits)
        code += edit->text();
    return code;
}

void CodeCards::showAddress(bool shown)
{
    m_codeEntry->setVisible(!shown);
    m_address->setVisible(shown);
    m_link->setText(shown ? ConnectionPage::tr("Enter their code instead")
                          : ConnectionPage::tr("Enter an address instead"));
    if (isVisible())
        (shown ? static_cast<QWidget *>(m_address) : m_edits.constFirst())->setFocus();
}

} // namespace Zandrove
