#include "core/app/StartUp.h"

#include "core/app/Log.h"
#include "core/common/AppConfig.h"
#include "core/common/Languages.h"
#include "core/common/Records.h"
#include "platform/ExternalProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <tuple>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove::StartUp {

namespace {

constexpr auto FirewallQueryTimeout = 3000ms;

QString tcpRuleName()
{
    return u"Zandrove TCP"_s;
}

bool firewallRuleExists(const QString &name)
{
    const auto result = Platform::runProgram(
        u"netsh"_s, {u"advfirewall"_s, u"firewall"_s, u"show"_s, u"rule"_s, u"name="_s + name},
        FirewallQueryTimeout);
    return QString::fromLocal8Bit(result.standardOutput).contains(name);
}

/// Whether the rule could be added is of no interest: the next start tries again.
void addFirewallRule(const QString &name, const QString &protocol, quint16 port)
{
    std::ignore = Platform::runProgram(
        u"netsh"_s, {u"advfirewall"_s, u"firewall"_s, u"add"_s, u"rule"_s, u"name="_s + name, u"dir=in"_s,
                     u"action=allow"_s, u"protocol="_s + protocol, u"localport="_s + QString::number(port),
                     u"profile=any"_s});
}

} // namespace

void setIdentity()
{
    QCoreApplication::setApplicationName(AppConfig::appName());
    QCoreApplication::setApplicationVersion(AppConfig::appVersion());
    QCoreApplication::setOrganizationName(AppConfig::userOrganisation());
    QCoreApplication::setOrganizationDomain(u"zandrove.example"_s);
}

void ensureFirewallRules()
{
    if (firewallRuleExists(tcpRuleName()))
        return;
    addFirewallRule(tcpRuleName(), u"tcp"_s, TcpPort);
    addFirewallRule(u"Zandrove UDP"_s, u"udp"_s, UdpPort);
}

void registerMetaTypes()
{
    qRegisterMetaType<PCInfo>("Zandrove::PCInfo");
    qRegisterMetaType<AppInfo>("Zandrove::AppInfo");
    qRegisterMetaType<FolderInfo>("Zandrove::FolderInfo");
    qRegisterMetaType<AccountInfo>("Zandrove::AccountInfo");
    qRegisterMetaType<SettingInfo>("Zandrove::SettingInfo");
    qRegisterMetaType<ScanResult>("Zandrove::ScanResult");
    qRegisterMetaType<TransferProgress>("Zandrove::TransferProgress");
    qRegisterMetaType<TransferFileInfo>("Zandrove::TransferFileInfo");
    qRegisterMetaType<ConflictConfig>("Zandrove::ConflictConfig");
    qRegisterMetaType<MigrationReport>("Zandrove::MigrationReport");
    qRegisterMetaType<QList<PCInfo>>("QList<Zandrove::PCInfo>");
    qRegisterMetaType<QList<AppInfo>>("QList<Zandrove::AppInfo>");
    qRegisterMetaType<QList<FolderInfo>>("QList<Zandrove::FolderInfo>");
    qRegisterMetaType<QList<AccountInfo>>("QList<Zandrove::AccountInfo>");
    qRegisterMetaType<QList<SettingInfo>>("QList<Zandrove::SettingInfo>");
}

QString chooseLanguage(const QString &storedLanguage, const QString &localeName)
{
    if (!storedLanguage.isEmpty()) {
        qCDebug(logApp) << "[Main] Using user language:" << storedLanguage;
        return storedLanguage;
    }
    const QString twoLetters = localeName.section(u'_', 0, 0).left(2);
    qCDebug(logApp) << "[Main] System language:" << twoLetters;
    const Language *const known = languageForLetters(twoLetters);
    QString language = known ? QString(known->code) : u"en"_s;
    qCDebug(logApp) << "[Main] Auto-detected:" << language;
    return language;
}

QString translationPath(const QString &applicationDir, const QString &language)
{
    return u"%1/translations/Zandrove_%2.qm"_s.arg(applicationDir, language);
}

bool installTranslation(const QString &applicationDir, const QString &language)
{
    static QTranslator translator;

    const QString path = translationPath(applicationDir, language);
    const bool exists = QFile::exists(path);
    qCDebug(logApp) << "[Main] Translation file:" << path;
    qCDebug(logApp) << "[Main] File exists:" << exists;

    // For a missing file QTranslator would try shorter names, of other languages too.
    if (!exists || !translator.load(path)) {
        qCDebug(logApp) << "[Main] ✗ Failed to load translation file";
        qCDebug(logApp) << "[Main] Falling back to English";
        return false;
    }
    if (!QCoreApplication::installTranslator(&translator)) {
        qCDebug(logApp) << "[Main] ✗ Failed to install translator";
        return false;
    }
    qCDebug(logApp) << "[Main] ✓ Translation loaded successfully:" << language;
    return true;
}

QString initTranslation()
{
    qCDebug(logApp) << "========== Translation Init ==========";
    const QSettings settings(AppConfig::userOrganisation(), AppConfig::appName());
    const QString stored = settings.value(LanguageKey, QString()).toString();
    qCDebug(logApp) << "[Main] User language from settings:" << stored;
    QString language = chooseLanguage(stored, QLocale::system().name());
    installTranslation(QCoreApplication::applicationDirPath(), language);
    qCDebug(logApp) << "=======================================";
    return language;
}

QString styleSheet(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll());
}

} // namespace Zandrove::StartUp
