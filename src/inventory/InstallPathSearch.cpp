#include "inventory/InstallPathSearch.h"

#include "inventory/AppIdentity.h"
#include "inventory/Log.h"
#include "inventory/WordLists.h"
#include "support/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

const QString Programs = u"*.exe"_s;
const QString Icons = u"*.ico"_s;

constexpr qsizetype ShortestNormalizedName = 4;
constexpr qsizetype TellingBeginning = 8; // characters of a name that tell it from others
constexpr qsizetype ShortestFuzzyName = 5;
constexpr double LeastFuzzyShare = 0.6;
constexpr qsizetype FolderBeginning = 5; // characters of a folder that its main program bears

/// One search: the names in the forms that its stages compare.
class Search final
{
public:
    Search(const AppNames &names, const FolderView &folders, const StopCheck &stop)
        : m_folders(folders)
        , m_stop(stop)
        , m_candidates(candidateFolderNames(names))
        , m_lowerName(names.appName.toLower())
        , m_lowerDisplay(names.displayName.toLower())
        , m_normName(lettersAndDigits(m_lowerName))
        , m_normDisplay(lettersAndDigits(m_lowerDisplay))
    {
    }

    [[nodiscard]] std::optional<QString> below(const QString &root) const
    {
        if (const auto exact = exactMatch(root))
            return exact;
        const QStringList subfolders = m_folders.subfolders(root);
        if (const auto sameLetters = firstMatch(root, subfolders, &Search::equalsIgnoringCase)) {
            qCDebug(logInventory) << "[findInstallPath] Case-insensitive match:" << *sameLetters;
            return sameLetters;
        }
        if (m_normName.size() >= ShortestNormalizedName) {
            if (const auto normalized = firstMatch(root, subfolders, &Search::equalsNormalized)) {
                const QString form = lettersAndDigits(normalized->mid(root.size() + 1).toLower());
                qCDebug(logInventory) << "[findInstallPath] Normalized match:" << *normalized << "(" << form
                                      << "==" << (form == m_normName ? m_normName : m_normDisplay) << ")";
                return normalized;
            }
        }
        const auto alike = firstMatch(root, subfolders, &Search::isAlike);
        if (alike)
            qCDebug(logInventory) << "[findInstallPath] Fuzzy match:" << *alike;
        return alike;
    }

private:
    using Rule = bool (Search::*)(const QString &lowerFolder) const;

    [[nodiscard]] bool holdsProgram(const QString &folder) const
    {
        return !m_folders.files(folder, Programs).isEmpty();
    }

    [[nodiscard]] std::optional<QString> exactMatch(const QString &root) const
    {
        for (const QString &candidate : m_candidates) {
            const QString path = root + u'/' + candidate;
            if (m_folders.isFolder(path) && holdsProgram(path)) {
                qCDebug(logInventory) << "[findInstallPath] Exact match:" << path;
                return path;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<QString> firstMatch(const QString &root, const QStringList &subfolders,
                                                    Rule matches) const
    {
        for (const QString &folder : subfolders) {
            if (m_stop && m_stop())
                break;
            const QString path = root + u'/' + folder;
            if ((this->*matches)(folder.toLower()) && holdsProgram(path))
                return path;
        }
        return std::nullopt;
    }

    [[nodiscard]] bool equalsIgnoringCase(const QString &lowerFolder) const
    {
        return lowerFolder == m_lowerName || lowerFolder == m_lowerDisplay;
    }

    [[nodiscard]] bool equalsNormalized(const QString &lowerFolder) const
    {
        const QString form = lettersAndDigits(lowerFolder);
        return form == m_normName || form == m_normDisplay;
    }

    [[nodiscard]] bool isAlike(const QString &lowerFolder) const
    {
        return lowerFolder.contains(m_lowerName) || m_lowerName.contains(lowerFolder) ||
               lowerFolder.contains(QStringView(m_lowerDisplay).left(TellingBeginning)) ||
               sharesMostOfItsName(lettersAndDigits(lowerFolder));
    }

    [[nodiscard]] bool sharesMostOfItsName(const QString &form) const
    {
        if (m_normName.size() < ShortestFuzzyName || form.size() < ShortestFuzzyName)
            return false;
        const bool folderIsShorter = form.size() < m_normName.size();
        const QString &shorter = folderIsShorter ? form : m_normName;
        const QString &longer = folderIsShorter ? m_normName : form;
        return longer.contains(shorter) && double(shorter.size()) / double(longer.size()) >= LeastFuzzyShare;
    }

    const FolderView &m_folders;
    const StopCheck &m_stop;
    QStringList m_candidates;
    QString m_lowerName;
    QString m_lowerDisplay;
    QString m_normName;
    QString m_normDisplay;
};

/// A name out of a registry can be anything, and neither the folder that is searched nor one above it is a
/// match. Windows leaves out the points and spaces that a name ends with, so one of
/// nothing else is that folder.
bool staysBelow(const QString &candidate)
{
    const QString clean = cleanPath(candidate);
    return !clean.startsWith("../"_L1) && std::any_of(clean.begin(), clean.end(), [](QChar character) {
        return character != u'.' && character != u'/' && !character.isSpace();
    });
}

QString withoutVersion(QString name)
{
    static const QRegularExpression SpelledOut(u"\\s+version\\s+[\\d.]+"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression Trailing(u"\\s+v?[\\d.]+$"_s);
    return name.remove(SpelledOut).remove(Trailing).trimmed();
}

QString withoutSpaces(QString name)
{
    return name.remove(u' ');
}

/// The file that the registry's text names, which may carry an index, quotes and variables.
QString iconFileIn(const QString &displayIcon)
{
    QString file = displayIcon.section(u',', 0, 0).trimmed().remove(u'"');
    if (file.contains(u'%')) {
        const std::array<std::pair<QString, QString>, 3> Variables{{
            {u"%SystemRoot%"_s, qEnvironmentVariable("SystemRoot", u"C:\\Windows"_s)},
            {u"%ProgramFiles%"_s, qEnvironmentVariable("ProgramFiles")},
            {u"%ProgramFiles(x86)%"_s, qEnvironmentVariable("ProgramFiles(x86)")},
        }};
        for (const auto &[variable, value] : Variables)
            file.replace(variable, value, Qt::CaseInsensitive);
    }
    return file;
}

bool isHelperProgram(const QString &lowerFile)
{
    static constexpr std::array Signs = {"uninstall"_L1, "uninst"_L1, "update"_L1,
                                         "updater"_L1,   "setup"_L1,  "install"_L1};
    return containsAny(lowerFile, Signs);
}

/// The program among `files` that bears the name of the application or of its folder, else the first one that
/// is no helper; empty where there is none.
QString mainProgram(const QStringList &files, const QString &lowerFolder, const QString &displayName)
{
    const QString nameForm = lettersAndDigits(displayName.toLower());
    QString fallback;
    for (const QString &file : files) {
        if (isHelperProgram(file.toLower()))
            continue;
        const QString base = QFileInfo(file).completeBaseName().toLower();
        if (lettersAndDigits(base) == nameForm || lowerFolder.contains(base) ||
            base.contains(QStringView(lowerFolder).left(FolderBeginning)))
            return file;
        if (fallback.isEmpty())
            fallback = file;
    }
    return fallback;
}

QString mainIcon(const QStringList &files, const QString &lowerFolder)
{
    const auto bearsTheName = [&lowerFolder](const QString &file) {
        return file.toLower().contains(lowerFolder) ||
               lowerFolder.contains(QFileInfo(file).baseName().toLower());
    };
    const auto found = std::find_if(files.begin(), files.end(), bearsTheName);
    return found == files.end() ? files.value(0) : *found;
}

} // namespace

QStringList installSearchRoots()
{
    QStringList roots = programFilesFolders();
    for (const QString &place : {u"/AppData/Local/Programs"_s, u"/AppData/Local"_s, u"/AppData/Roaming"_s})
        roots.append(QDir::homePath() + place);
    return roots + programFoldersOnOtherDrives();
}

QStringList candidateFolderNames(const AppNames &names)
{
    const auto &[appName, displayName, publisher] = names;
    QStringList candidates{appName};
    if (displayName != appName)
        candidates.append(displayName);
    if (!publisher.isEmpty())
        candidates << publisher + u'/' + appName << publisher;
    const QString joinedName = withoutSpaces(appName);
    if (joinedName != appName)
        candidates.append(joinedName);
    const QString joinedDisplay = withoutSpaces(displayName);
    if (joinedDisplay != displayName && joinedDisplay != joinedName)
        candidates.append(joinedDisplay);
    const QString bare = withoutVersion(displayName);
    if (!bare.isEmpty() && bare != displayName && !candidates.contains(bare))
        candidates.append(bare);
    candidates.removeIf([](const QString &candidate) { return !staysBelow(candidate); });
    return candidates;
}

QString findInstallPath(const AppNames &names, const QStringList &roots, const FolderView &folders,
                        const StopCheck &stop)
{
    qCDebug(logInventory) << "[findInstallPath] Searching for:" << names.appName
                          << "displayName:" << names.displayName << "publisher:" << names.publisher;
    const Search search(names, folders, stop);
    for (const QString &root : roots) {
        if (stop && stop())
            return {};
        if (root.isEmpty() || !folders.isFolder(root))
            continue;
        if (const std::optional<QString> path = search.below(root))
            return *path;
    }
    qCDebug(logInventory) << "[findInstallPath] Not found for:" << names.appName;
    return {};
}

QString findAppIconPath(const QString &displayIcon, const QString &installPath, const QString &displayName,
                        const FolderView &folders)
{
    if (!displayIcon.isEmpty()) {
        const QString file = iconFileIn(displayIcon);
        if (!file.isEmpty() && folders.exists(file))
            return file;
    }
    if (installPath.isEmpty() || !folders.isFolder(installPath))
        return {};
    const QString lowerFolder = QFileInfo(cleanPath(installPath)).fileName().toLower();
    QString file = mainProgram(folders.files(installPath, Programs), lowerFolder, displayName);
    if (file.isEmpty())
        file = mainIcon(folders.files(installPath, Icons), lowerFolder);
    return file.isEmpty() ? QString() : installPath + u'/' + file;
}

} // namespace Zandrove
