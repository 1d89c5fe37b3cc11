#include "inventory/AppIdentity.h"

#include "inventory/WordLists.h"

#include <QLatin1StringView>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qsizetype ShortestComparableForm = 4;
constexpr qsizetype ShortestTellingWord = 5;
constexpr qsizetype ShortestContainedForm = 5;
constexpr double LeastContainedShare = 0.5;
constexpr qsizetype ShortestCommonPrefix = 6;
constexpr double LeastPrefixShare = 0.7;

/// What names carry besides the name, in the order in which it is taken away.
const std::array<QRegularExpression, 14> &decorations()
{
    static const auto Pattern = [](const QString &pattern) {
        return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
    };
    static const std::array Decorations = {
        Pattern(u"\\s*\\(x64[^)]*\\)"_s),
        Pattern(u"\\s*\\(x86[^)]*\\)"_s),
        Pattern(u"\\s*\\(64[- ]?bit\\)"_s),
        Pattern(u"\\s*\\(32[- ]?bit\\)"_s),
        Pattern(u"\\s*x64"_s),
        Pattern(u"\\s*x86"_s),
        Pattern(u"\\s*\\([a-z]{2}-[a-z]{2}\\)"_s),
        Pattern(u"\\s*\\(en-us\\)"_s),
        Pattern(u"\\s*\\(zh-cn\\)"_s),
        Pattern(u"\\s+version\\s+[\\d.]+"_s),
        QRegularExpression(u"\\s+v?[\\d.]+\\s*$"_s),
        QRegularExpression(u"^v?[\\d.]+\\s+"_s),
        QRegularExpression(u"\\s*-\\s*$"_s),
        QRegularExpression(u"\\s+$"_s),
    };
    return Decorations;
}

bool shareATellingWord(const AppIdentity &a, const AppIdentity &b)
{
    return std::any_of(a.words.begin(), a.words.end(), [&b](const QString &word) {
        return word.size() >= ShortestTellingWord && b.words.contains(word);
    });
}

bool isMostOf(const QString &shorter, const QString &longer)
{
    return shorter.size() >= ShortestContainedForm &&
           double(shorter.size()) / double(longer.size()) >= LeastContainedShare && longer.contains(shorter);
}

bool beginAlike(const QString &shorter, const QString &longer)
{
    const auto [difference, rest] =
        std::mismatch(shorter.begin(), shorter.end(), longer.begin(), longer.end());
    const qsizetype prefix = difference - shorter.begin();
    return prefix >= ShortestCommonPrefix && double(prefix) / double(shorter.size()) >= LeastPrefixShare;
}

bool isUpdateOfTheSystem(const QString &name, const QString &publisher)
{
    static constexpr std::array Signs = {"windows"_L1, "microsoft"_L1, "security"_L1, "hotfix"_L1,
                                         "service pack"_L1};
    return name.contains("update"_L1) && (containsAny(name, Signs) || publisher.contains("microsoft"_L1));
}

bool liesInTheSystemFolder(const QString &location)
{
    return location.contains("\\windows\\"_L1) || location.startsWith("c:\\windows"_L1) ||
           location.contains("\\system32\\"_L1) || location.contains("\\syswow64\\"_L1);
}

bool isRuntime(const QString &name)
{
    static constexpr std::array Frameworks = {".net framework"_L1, ".net runtime"_L1, ".net sdk"_L1,
                                              ".net core"_L1, "microsoft .net"_L1};
    const bool runtimeOfC = name.contains("visual c++"_L1) &&
                            (name.contains("redistributable"_L1) || name.contains("runtime"_L1));
    return runtimeOfC || containsAny(name, Frameworks);
}

bool isDriver(const QString &name, const QString &publisher)
{
    static constexpr std::array Makers = {"intel"_L1,   "nvidia"_L1,   "amd"_L1,
                                          "realtek"_L1, "qualcomm"_L1, "broadcom"_L1};
    return name.contains("driver"_L1) && containsAny(publisher, Makers);
}

bool isPartOfTheSystem(const QString &name)
{
    static constexpr std::array Names = {"update"_L1, "updater"_L1, "auto update"_L1, "autoupdate"_L1,
                                         "software update"_L1};
    static constexpr std::array Parts = {"microsoft visual"_L1,
                                         "microsoft onedrive"_L1,
                                         "microsoft edge webview"_L1,
                                         "windows app runtime"_L1,
                                         "windows desktop runtime"_L1,
                                         "windows software development kit"_L1,
                                         "windows sdk"_L1,
                                         "vs_community"_L1,
                                         "vs_professional"_L1,
                                         "vs_enterprise"_L1,
                                         "vcredist"_L1,
                                         "oobe"_L1,
                                         "setup"_L1,
                                         "redistributable"_L1,
                                         "runtime broker"_L1};
    return name.startsWith("windows"_L1) || name.startsWith("microsoft windows"_L1) ||
           equalsAny(name, Names) || containsAny(name, Parts);
}

} // namespace

QString lettersAndDigits(const QString &lowerName)
{
    QString kept;
    kept.reserve(lowerName.size());
    for (const QChar character : lowerName) {
        if ((character >= u'a' && character <= u'z') || (character >= u'0' && character <= u'9'))
            kept.append(character);
    }
    return kept;
}

QString normalizeAppName(const QString &name)
{
    QString bare = name.toLower().trimmed();
    for (const QRegularExpression &decoration : decorations())
        bare.remove(decoration);
    const QString form = lettersAndDigits(bare);
    return form.isEmpty() ? bare.trimmed() : form;
}

AppIdentity identityOf(const QString &name)
{
    AppIdentity identity;
    identity.lowerName = name.toLower();
    identity.form = normalizeAppName(name);
    identity.words = identity.form.split(u' ', Qt::SkipEmptyParts);
    identity.uninstalls = identity.lowerName.startsWith("uninstall "_L1);
    return identity;
}

bool isSameApp(const AppIdentity &a, const AppIdentity &b)
{
    if (a.uninstalls != b.uninstalls)
        return false;
    if (a.form == b.form)
        return true;
    if (std::min(a.form.size(), b.form.size()) < ShortestComparableForm)
        return false;
    const bool firstIsShorter = a.form.size() < b.form.size();
    const QString &shorter = firstIsShorter ? a.form : b.form;
    const QString &longer = firstIsShorter ? b.form : a.form;
    return shareATellingWord(a, b) || isMostOf(shorter, longer) || beginAlike(shorter, longer);
}

bool isSameApp(const QString &a, const QString &b)
{
    return isSameApp(identityOf(a), identityOf(b));
}

bool isSystemApp(const QString &name, const QString &location, const QString &publisher)
{
    static const QRegularExpression KnowledgeBaseNumber(u"^kb\\d+"_s,
                                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression DigitsAndPoints(u"^[\\d.]+$"_s);

    const QString lowerName = name.toLower();
    const QString lowerPublisher = publisher.toLower();
    return isPartOfTheSystem(lowerName) || KnowledgeBaseNumber.match(name).hasMatch() ||
           isUpdateOfTheSystem(lowerName, lowerPublisher) || liesInTheSystemFolder(location.toLower()) ||
           isRuntime(lowerName) || isDriver(lowerName, lowerPublisher) ||
           DigitsAndPoints.match(name.trimmed()).hasMatch();
}

} // namespace Zandrove
