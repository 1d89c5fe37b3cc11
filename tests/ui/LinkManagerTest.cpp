#include "UiTests.h"

#include "core/common/AppConfig.h"
#include "support/LinkManager.h"

#include <QDesktopServices>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace Zandrove;

/// The web links: the ones that come with the program, and what happens when one is missing.
class LinkManagerTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void browse(const QUrl &url) { m_browsed.append(url); }

private Q_SLOTS:
    void init();
    void everyLanguageHasEveryLink();
    void systemLanguageIsMapped_data();
    void systemLanguageIsMapped();
    void poorDocumentGivesWhatItHas_data();
    void poorDocumentGivesWhatItHas();
    void languageIsKept();
    void linkGoesToTheBrowser();

private:
    QTemporaryDir m_folder;
    QList<QUrl> m_browsed;
};

void LinkManagerTest::init()
{
    QSettings(AppConfig::userOrganisation(), AppConfig::appName()).clear();
    m_browsed.clear();
}

void LinkManagerTest::everyLanguageHasEveryLink()
{
    const QStringList links{u"support/help"_s, u"support/contact"_s,  u"support/tutorial"_s,
                            u"support/faq"_s,  u"purchase/buy_now"_s, u"menu/about"_s,
                            u"menu/support"_s, u"menu/purchase"_s,    u"menu/updates"_s,
                            u"website/home"_s, u"website/product"_s};
    QFile file(u":/links/links.json"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    for (const QString &link : links) {
        const QJsonObject addresses =
            document.value(link.section(u'/', 0, 0)).toObject().value(link.section(u'/', 1)).toObject();
        QCOMPARE(addresses.size(), 10);
        for (const QString &language :
             {u"en"_s, u"fr"_s, u"de"_s, u"ja"_s, u"es"_s, u"ko"_s, u"zh_TW"_s, u"nl"_s, u"pt"_s, u"it"_s}) {
            const QUrl url(addresses.value(language).toString(), QUrl::StrictMode);
            QVERIFY2(url.scheme() == "https"_L1 && url.host().endsWith(".example"_L1), qPrintable(link));
        }
    }
}

void LinkManagerTest::systemLanguageIsMapped_data()
{
    QTest::addColumn<QString>("language");
    for (const auto &[locale, language] :
         std::initializer_list<std::pair<const char *, const char *>>{{"zh_TW", "zh_TW"},
                                                                      {"zh_HK", "zh_TW"},
                                                                      {"zh_CN", "en"},
                                                                      {"zh_SG", "en"},
                                                                      {"pt_BR", "pt"},
                                                                      {"sv_SE", "en"},
                                                                      {"DE", "de"},
                                                                      {"ko_KR", "ko"},
                                                                      {"C", "en"},
                                                                      {"", "en"}})
        QTest::newRow(locale) << QString::fromLatin1(language);
}

void LinkManagerTest::systemLanguageIsMapped()
{
    QTEST(LinkManager::mapSystemLanguage(QString::fromLatin1(QTest::currentDataTag())), "language");
}

void LinkManagerTest::poorDocumentGivesWhatItHas_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("link");
    const QByteArray metadata =
        R"("metadata": {"supported_languages": ["en", "fr"], "fallback_language": "fr"})";
    QTest::newRow("missing") << QByteArray() << QString();
    QTest::newRow("no JSON") << QByteArray("{") << QString();
    QTest::newRow("no object") << QByteArray("[]") << QString();
    QTest::newRow("other types") << QByteArray(R"({"metadata": 1, "c": {"k": ["en"]}})") << QString();
    QTest::newRow("no category") << "{" + metadata + "}" << QString();
    QTest::newRow("no key") << "{" + metadata + R"(, "c": {}})" << QString();
    QTest::newRow("neither language") << "{" + metadata + R"(, "c": {"k": {"it": "i"}}})" << QString();
    QTest::newRow("fallback") << "{" + metadata + R"(, "c": {"k": {"fr": "f"}}})" << u"f"_s;
    QTest::newRow("empty address") << "{" + metadata + R"(, "c": {"k": {"en": "", "fr": "f"}}})" << u"f"_s;
    QTest::newRow("language in use") << "{" + metadata + R"(, "c": {"k": {"en": "e", "fr": "f"}}})" << u"e"_s;
}

void LinkManagerTest::poorDocumentGivesWhatItHas()
{
    QFETCH(QByteArray, document);
    const QString path = m_folder.filePath(QString::fromLatin1(QTest::currentDataTag()));
    if (!document.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
    }
    LinkManager manager(path);
    manager.setLanguage(u"en"_s);
    QTEST(manager.getLink(u"c"_s, u"k"_s), "link");
    if (manager.getLink(u"c"_s, u"k"_s).isEmpty())
        QVERIFY(!manager.openLink(u"c"_s, u"k"_s, nullptr));
}

void LinkManagerTest::languageIsKept()
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
    QCOMPARE(settings.value("language"_L1).toString(), u"de"_s);
    QCOMPARE(LinkManager().language(), u"de"_s);
}

void LinkManagerTest::linkGoesToTheBrowser()
{
    LinkManager manager;
    manager.setLanguage(u"fr"_s);
    QDesktopServices::setUrlHandler(u"https"_s, this, "browse");
    const bool opened = manager.openLink(u"support"_s, u"help"_s, nullptr);
    QDesktopServices::unsetUrlHandler(u"https"_s);
    QVERIFY(opened);
    QCOMPARE(m_browsed, QList{QUrl(manager.getLink(u"support"_s, u"help"_s))});
}

QObject *makeLinkManagerTest()
{
    return new LinkManagerTest;
}

#include "LinkManagerTest.moc"
