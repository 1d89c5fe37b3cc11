#include "support/LinkManager.h"

#include "core/common/AppConfig.h"
#include "core/common/Languages.h"
#include "support/Log.h"

#include <QDesktopServices>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Zandrove {

LinkManager &LinkManager::instance()
{
    static LinkManager *const Manager = new LinkManager;
    return *Manager;
}

LinkManager::LinkManager(const QString &document, QObject *parent)
    : QObject(parent)
    , m_fallbackLanguage(u"en"_s)
{
    if (!loadLinks(document))
        qCCritical(logSupport) << "[LinkManager] 加载链接配置失败！";
    m_currentLanguage = detectLanguage();
    qCDebug(logSupport) << "[LinkManager] 初始化完成";
    qCDebug(logSupport) << "[LinkManager] 当前语言:" << m_currentLanguage;
    qCDebug(logSupport) << "[LinkManager] 支持的语言:" << m_supportedLanguages;
}

bool LinkManager::loadLinks(const QString &document)
{
    QFile file(document);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qCCritical(logSupport) << "[LinkManager] 无法打开 links.json:" << file.errorString();
        return false;
    }
    const QJsonDocument json = QJsonDocument::fromJson(file.readAll());
    file.close();
    if (!json.isObject()) {
        qCCritical(logSupport) << "[LinkManager] JSON 格式错误";
        return false;
    }
    m_links = json.object();
    if (const auto metadata = m_links.constFind("metadata"_L1); metadata != m_links.constEnd())
        loadMetadata(metadata->toObject());
    return true;
}

void LinkManager::loadMetadata(const QJsonObject &metadata)
{
    const QJsonArray languages = metadata.value("supported_languages"_L1).toArray();
    for (const QJsonValue &language : languages)
        m_supportedLanguages.append(language.toString());
    if (const auto fallback = metadata.constFind("fallback_language"_L1); fallback != metadata.constEnd())
        m_fallbackLanguage = fallback->toString();
    qCDebug(logSupport) << "[LinkManager] 元数据加载成功";
    qCDebug(logSupport) << "[LinkManager] 版本:" << metadata.value("version"_L1).toString();
    qCDebug(logSupport) << "[LinkManager] 更新日期:" << metadata.value("last_updated"_L1).toString();
}

QString LinkManager::detectLanguage() const
{
    const QSettings settings(AppConfig::userOrganisation(), AppConfig::appName());
    QString chosen = settings.value(LanguageKey, QString()).toString();
    if (!chosen.isEmpty() && m_supportedLanguages.contains(chosen)) {
        qCDebug(logSupport) << "[LinkManager] 使用用户设置的语言:" << chosen;
        return chosen;
    }
    const QString locale = QLocale::system().name();
    QString mapped = mapSystemLanguage(locale);
    qCDebug(logSupport) << "[LinkManager] 系统语言:" << locale << "-> 映射为:" << mapped;
    if (m_supportedLanguages.contains(mapped))
        return mapped;
    qCWarning(logSupport) << "[LinkManager] 不支持的语言，使用回退语言:" << m_fallbackLanguage;
    return m_fallbackLanguage;
}

QString LinkManager::mapSystemLanguage(const QString &locale)
{
    // The pages have no simplified Chinese; its readers get the English ones.
    if (locale == "zh_TW"_L1 || locale == "zh_HK"_L1)
        return u"zh_TW"_s;
    QString twoLetters = locale.left(2).toLower();
    const Language *const known = languageForLetters(twoLetters);
    return known && known->code == twoLetters ? twoLetters : u"en"_s;
}

QString LinkManager::lookupLink(const QString &category, const QString &key, const QString &language) const
{
    if (!m_links.contains(category)) {
        qCWarning(logSupport) << "[LinkManager] 类别不存在:" << category;
        return {};
    }
    const QJsonObject keys = m_links.value(category).toObject();
    if (!keys.contains(key)) {
        qCWarning(logSupport) << "[LinkManager] 键不存在:" << key << "in category:" << category;
        return {};
    }
    const QJsonObject addresses = keys.value(key).toObject();
    if (addresses.contains(language)) {
        QString url = addresses.value(language).toString();
        qCDebug(logSupport) << "[LinkManager] 获取链接:" << category << key << language << url;
        return url;
    }
    if (addresses.contains(m_fallbackLanguage)) {
        qCWarning(logSupport) << "[LinkManager] 语言" << language
                              << "不存在，使用回退语言:" << m_fallbackLanguage;
        return addresses.value(m_fallbackLanguage).toString();
    }
    qCCritical(logSupport) << "[LinkManager] 无法找到链接:" << category << "/" << key;
    return {};
}

QString LinkManager::getLink(const QString &category, const QString &key) const
{
    if (QString url = lookupLink(category, key, m_currentLanguage); !url.isEmpty()) {
        qCDebug(logSupport) << "[LinkManager] ✓ 获取链接成功 [" << m_currentLanguage << "]:" << url;
        return url;
    }
    qCWarning(logSupport) << "[LinkManager] ⚠ 无法获取" << category << "/" << key << "的" << m_currentLanguage
                          << "版本，降级到" << m_fallbackLanguage;
    QString url = lookupLink(category, key, m_fallbackLanguage);
    if (url.isEmpty()) {
        qCCritical(logSupport) << "[LinkManager] ✗ 无法获取链接:" << category << "/" << key;
        qCCritical(logSupport) << "[LinkManager] ✗ 请检查 links.json 配置文件！";
        return {};
    }
    qCDebug(logSupport) << "[LinkManager] ✓ 使用回退语言 [" << m_fallbackLanguage << "]:" << url;
    return url;
}

bool LinkManager::openLink(const QString &category, const QString &key, QWidget *parent)
{
    const QString url = getLink(category, key);
    if (url.isEmpty()) {
        qCCritical(logSupport) << "[LinkManager] ✗ 无法打开链接:" << category << "/" << key;
        if (parent != nullptr)
            QMessageBox::critical(parent, tr("配置错误"),
                                  tr("无法加载页面链接。\n\n请联系技术支持或重新安装软件。"));
        return false;
    }
    if (QDesktopServices::openUrl(QUrl(url))) {
        qCDebug(logSupport) << "[LinkManager] ✓ 成功打开链接:" << url;
        return true;
    }
    qCWarning(logSupport) << "[LinkManager] ⚠ 无法打开浏览器:" << url;
    if (parent != nullptr) {
        QMessageBox warning(QMessageBox::Warning, tr("无法打开浏览器"),
                            tr("无法打开默认浏览器。\n\n请手动复制链接访问：\n%1").arg(url), QMessageBox::Ok,
                            parent);
        // It asks to copy the link, and most styles let nobody do so.
        warning.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        warning.exec();
    }
    return false;
}

void LinkManager::setLanguage(const QString &language)
{
    if (!m_supportedLanguages.contains(language)) {
        qCWarning(logSupport) << "[LinkManager] 不支持的语言:" << language;
        return;
    }
    if (language == m_currentLanguage)
        return;
    m_currentLanguage = language;
    QSettings(AppConfig::userOrganisation(), AppConfig::appName()).setValue(LanguageKey, language);
    qCDebug(logSupport) << "[LinkManager] 语言已切换为:" << language;
    Q_EMIT languageChanged(language);
}

} // namespace Zandrove
