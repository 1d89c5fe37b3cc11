#include "ui/pages/AddressEntry.h"

#include "support/NetworkAdapters.h"
#include "support/PrintableText.h"
#include "ui/pages/ConnectionPage.h" // whose the texts are
#include "ui/widgets/Labels.h"

#include <QHostAddress>
#include <QHostInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int LongestHostName = 253;

QString fieldStyle()
{
    using namespace Theme::Colour;
    return u"QLineEdit { background: %1; color: %2; border: 2px solid %3; border-radius: 10px;"
           " padding: 8px 12px; font-size: 14px; }"
           " QLineEdit:focus { border-color: %4; }"_s.arg(White, Text, Border, Primary);
}

/// Four numbers, and not the shorter forms that QHostAddress takes as well.
bool isFourNumbers(const QString &text)
{
    static const QRegularExpression Form(u"^\\d{1,3}(\\.\\d{1,3}){3}$"_s);
    return Form.match(text).hasMatch() && !QHostAddress(text).isNull();
}

bool isOfOnePc(const QHostAddress &address)
{
    return !address.isMulticast() && !address.isBroadcast() && !address.isInSubnet(QHostAddress(0U), 8);
}

bool isOfThisPc(const QHostAddress &address)
{
    const QList<NetworkAdapter> adapters = systemNetworkAdapters();
    return address.isLoopback() ||
           std::any_of(adapters.cbegin(), adapters.cend(), [&address](const NetworkAdapter &adapter) {
               return std::any_of(adapter.addresses.cbegin(), adapter.addresses.cend(),
                                  [&address](const AdapterAddress &own) { return own.ip == address; });
           });
}

QString ownAddressText()
{
    return ConnectionPage::tr("This is the address of this PC.");
}

/// What keeps `text` from being dialled or looked up; empty where nothing does.
QString problemOf(const QString &text)
{
    static const QRegularExpression Numbers(u"^[\\d.]+$"_s);
    static const QRegularExpression HostName(u"^[\\w.-]+$"_s, QRegularExpression::UseUnicodePropertiesOption);
    if (text.contains(u':'))
        return ConnectionPage::tr("Only IPv4 addresses work here, such as 192.168.1.23.");
    if (Numbers.match(text).hasMatch()) {
        if (!isFourNumbers(text))
            return ConnectionPage::tr("An address has four numbers from 0 to 255, such as 192.168.1.23.");
        if (!isOfOnePc(QHostAddress(text)))
            return ConnectionPage::tr("This is not the address of one PC.");
        return isOfThisPc(QHostAddress(text)) ? ownAddressText() : QString();
    }
    if (text.size() > LongestHostName || !HostName.match(text).hasMatch())
        return ConnectionPage::tr("This is neither an address nor the name of a PC.");
    return {};
}

} // namespace

AddressEntry::AddressEntry(QWidget *parent)
    : QWidget(parent)
{
    m_field = new QLineEdit;
    m_field->setObjectName(u"addressField"_s);
    m_field->setStyleSheet(fieldStyle());
    m_field->setPlaceholderText(u"192.168.1.23"_s);
    m_field->setAccessibleName(ConnectionPage::tr("Address or name of the other PC"));
    m_message = makeLabel(QString(), 12);
    m_message->setObjectName(u"addressMessage"_s);
    m_message->setWordWrap(true);
    m_message->hide();
    m_connect = new QPushButton(ConnectionPage::tr("Connect"));
    m_connect->setStyleSheet(Theme::buttonStyle(Theme::primaryButton()));
    m_connect->setCursor(Qt::PointingHandCursor);
    m_connect->setEnabled(false);
    connect(m_field, &QLineEdit::textChanged, this, [this](const QString &text) {
        forgetLookUp();
        showError({});
        m_connect->setEnabled(!text.trimmed().isEmpty());
    });
    connect(m_field, &QLineEdit::returnPressed, this, &AddressEntry::onEntered);
    connect(m_connect, &QPushButton::clicked, this, &AddressEntry::onEntered);
    setFocusProxy(m_field);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(makeCentredLabel(ConnectionPage::tr("Or Enter Their Address"), 14, Theme::Colour::Text,
                                       Theme::SemiBold));
    layout->addWidget(m_field);
    layout->addWidget(m_message);
    layout->addWidget(m_connect);
}

AddressEntry::~AddressEntry()
{
    forgetLookUp();
}

QString AddressEntry::enteredText() const
{
    return m_field->text().trimmed();
}

void AddressEntry::clear()
{
    m_field->clear();
    showError({});
}

void AddressEntry::showError(const QString &text)
{
    tell(text, true);
}

void AddressEntry::tell(const QString &text, bool isError)
{
    m_message->setStyleSheet(Theme::statusStyle(isError ? Theme::Status::Failure : Theme::Status::Working));
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

void AddressEntry::forgetLookUp()
{
    if (m_lookUp >= 0)
        QHostInfo::abortHostLookup(m_lookUp);
    m_lookUp = -1;
}

void AddressEntry::onEntered()
{
    const QString text = enteredText();
    if (text.isEmpty() || m_lookUp >= 0)
        return;
    const QString problem = problemOf(text);
    showError(problem);
    if (!problem.isEmpty())
        return;
    if (isFourNumbers(text)) {
        Q_EMIT addressEntered(QHostAddress(text).toString());
        return;
    }
    tell(ConnectionPage::tr("Looking for %1...").arg(printable(text)), false);
    m_lookUp = QHostInfo::lookupHost(text, this, &AddressEntry::onLookedUp);
}

void AddressEntry::onLookedUp(const QHostInfo &host)
{
    m_lookUp = -1;
    const QList<QHostAddress> addresses = host.addresses();
    const auto found = std::find_if(addresses.cbegin(), addresses.cend(), [](const QHostAddress &address) {
        return address.protocol() == QAbstractSocket::IPv4Protocol && isOfOnePc(address);
    });
    const QString name = printable(host.hostName());
    if (found != addresses.cend() && isOfThisPc(*found)) {
        showError(ownAddressText());
    } else if (found != addresses.cend()) {
        showError({});
        Q_EMIT addressEntered(found->toString());
    } else if (addresses.isEmpty()) {
        showError(ConnectionPage::tr("No PC named %1 was found. Its address may work instead.").arg(name));
    } else {
        showError(ConnectionPage::tr("%1 has no IPv4 address.").arg(name));
    }
}

} // namespace Zandrove
