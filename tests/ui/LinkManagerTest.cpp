#include "TestMain.h"

#include "core/common/AppConfig.h"
#include "support/LinkManager.h"

#include <QDesktopServices>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>

/// The web links: the ones that come with the program, and what happens when one is missing.
class LinkManagerTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void browse(const QUrl &url) { m_browsed.append(url); }

private Q_SLOTS:
    void init() { QSettings(AppConfig::userOrganisation(), AppConfig::appName()).clear(); }

    void everyLanguageHasEveryLink()
    {
        QFile file(u":/links/links.json"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
        for (const QString &link : u"support/help support/contact support/tutorial support/faq "
                                   u"purchase/buy_now menu/about menu/support "
                                   "menu/purchase menu/updates website/home website/product"_s.split(u' ')) {
            const QString category = link.section(u'/', 0, 0);
            const QJsonObject addresses = document[category][link.section(u'/', 1)].toObject();
            QCOMPARE(addresses.keys().join(u' '), u"de en es fr it ja ko nl pt zh_TW"_s);
            for (const QJsonValue address : addresses) {
                const QUrl url(address.toString(), QUrl::StrictMode);
                QVERIFY2(url.scheme() == "https"_L1 && url.host().endsWith(".example"_L1), qPrintable(link));
            }
        }
    }

    void systemLanguageIsMapped()
    {
        QStringList mapped;
        for (const QString &locale : u"zh_TW zh_HK zh_CN zh_SG pt_BR sv_SE DE ko_KR C "_s.split(u' '))
            mapped.append(LinkManager::mapSystemLanguage(locale));
        QCOMPARE(mapped.join(u' '), u"zh_TW zh_TW en en pt en de ko en en"_s);
    }

    void poorDocumentGivesWhatItHas_data()
    {
        const auto row = addColumns<QByteArray, QString>("document", "link");
        const QByteArray start =
            R"({"metadata": {"supported_languages": ["en", "fr"], "fallback_language": "fr"})";
        row("missing", QByteArray(), QString());
        row("no JSON", QByteArray("{"), QString());
        row("no object", QByteArray("[]"), QString());
        row("other types", QByteArray(R"({"metadata": 1, "c": {"k": ["en"]}})"), QString());
        row("no category", start + "}", QString());
        row("no key", start + R"(, "c": {}})", QString());
        row("neither language", start + R"(, "c": {"k": {"it": "i"}}})", QString());
        row("fallback", start + R"(, "c": {"k": {"fr": "f"}}})", u"f"_s);
        row("empty address", start + R"(, "c": {"k": {"en": "", "fr": "f"}}})", u"f"_s);
        row("language in use", start + R"(, "c": {"k": {"en": "e", "fr": "f"}}})", u"e"_s);
    }

    void poorDocumentGivesWhatItHas()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, link);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"links.json"_s));
        QVERIFY(document.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(document) > 0));
        file.close();
        LinkManager manager(file.fileName());
        manager.setLanguage(u"en"_s);
        QCOMPARE(manager.getLink(u"c"_s, u"k"_s), link);
        QVERIFY(!link.isEmpty() || !manager.openLink(u"c"_s, u"k"_s, nullptr));
    }

    void languageIsKept()
    {
        QSettings settings(AppConfig::userOrganisation(), AppConfig::appName());
        settings.setValue("language"_L1, u"sv"_s);
        settings.sync();
        LinkManager manager;
        QVERIFY(manager.language() != "sv"_L1);

        const QSignalSpy changes(&manager, &LinkManager::languageChanged);
        for (const QString &language : {u"de"_s, u"de"_s, u"zh_CN"_s})
            manager.setLanguage(language);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(LinkManager().language(), u"de"_s);
    }

    void linkGoesToTheBrowser()
    {
        LinkManager manager;
        manager.setLanguage(u"fr"_s);
        QDesktopServices::setUrlHandler(u"https"_s, this, "browse");
        const bool opened = manager.openLink(u"support"_s, u"help"_s, nullptr);
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QVERIFY(opened);
        QCOMPARE(m_browsed, QList{QUrl(manager.getLink(u"support"_s, u"help"_s))});
    }

private:
    QList<QUrl> m_browsed;
};

ZANDROVE_TEST(LinkManagerTest)

#include "LinkManagerTest.moc"
