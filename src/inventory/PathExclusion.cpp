#include "inventory/PathExclusion.h"

#include "inventory/WordLists.h"
#include "support/Paths.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

// The seven last names have no form with backslashes.
constexpr std::array CacheDirPatterns = {
    "/cache/"_L1,         "/cache_data/"_L1,     "/gpucache/"_L1,   "/dawncache/"_L1,   "/code cache/"_L1,
    "/shadercache/"_L1,   "/cacheddata/"_L1,     "/webcache/"_L1,   "/diskcache/"_L1,   "/httpcache/"_L1,
    "/mediacache/"_L1,    "/thumbnailcache/"_L1, "/tempcache/"_L1,  "/scriptcache/"_L1, "/fontcache/"_L1,
    "\\cache\\"_L1,       "\\cache_data\\"_L1,   "\\gpucache\\"_L1, "\\dawncache\\"_L1, "\\code cache\\"_L1,
    "\\shadercache\\"_L1, "\\cacheddata\\"_L1,   "\\webcache\\"_L1};

constexpr std::array TempDirPatterns = {"/temp/"_L1,      "/tmp/"_L1,         "\\temp\\"_L1, "\\tmp\\"_L1,
                                        "/temporary/"_L1, "\\temporary\\"_L1, "/.temp/"_L1,  "\\.temp\\"_L1};

constexpr std::array LogDirPatterns = {"/logs/"_L1,          "\\logs\\"_L1,          "/crashdumps/"_L1,
                                       "\\crashdumps\\"_L1,  "/crashreports/"_L1,    "\\crashreports\\"_L1,
                                       "/crash reports/"_L1, "\\crash reports\\"_L1, "/minidumps/"_L1,
                                       "\\minidumps\\"_L1};

constexpr std::array UpdaterDirPatterns = {"/updater/"_L1, "\\updater\\"_L1, "-updater/"_L1, "-updater\\"_L1,
                                           "_updater/"_L1, "_updater\\"_L1,  "/update/"_L1,  "\\update\\"_L1,
                                           "/updates/"_L1, "\\updates\\"_L1};

constexpr QLatin1StringView OfficeLockMark = "~$"_L1;

constexpr std::array ExcludedFilePatterns = {
    "installer.exe"_L1, "updater.exe"_L1, "update.exe"_L1, "setup.exe"_L1, ".tmp"_L1,      ".temp"_L1,
    ".log"_L1,          ".bak"_L1,        ".old"_L1,       ".cache"_L1,    "thumbs.db"_L1, "desktop.ini"_L1,
    ".ds_store"_L1,     "debug.log"_L1,   "error.log"_L1,  "crash.log"_L1, OfficeLockMark};

constexpr std::array BrowserDataPatterns = {"/blob_storage/"_L1,
                                            "\\blob_storage\\"_L1,
                                            "/service worker/"_L1,
                                            "\\service worker\\"_L1,
                                            "/serviceworker/"_L1,
                                            "\\serviceworker\\"_L1,
                                            "/indexeddb/"_L1,
                                            "\\indexeddb\\"_L1,
                                            "/file system/"_L1,
                                            "\\file system\\"_L1,
                                            "/filesystem/"_L1,
                                            "\\filesystem\\"_L1,
                                            "/platform_notifications/"_L1,
                                            "\\platform_notifications\\"_L1,
                                            "/session storage/"_L1,
                                            "\\session storage\\"_L1,
                                            "/sessionstorage/"_L1,
                                            "\\sessionstorage\\"_L1,
                                            "/shared dictionary/"_L1,
                                            "\\shared dictionary\\"_L1,
                                            "/local storage/"_L1,
                                            "\\local storage\\"_L1,
                                            "/localstorage/"_L1,
                                            "\\localstorage\\"_L1,
                                            "/webdata/"_L1,
                                            "\\webdata\\"_L1,
                                            "/webstorage/"_L1,
                                            "\\webstorage\\"_L1,
                                            "/network/"_L1,
                                            "\\network\\"_L1,
                                            "/databases/"_L1,
                                            "\\databases\\"_L1};

constexpr std::array DatabaseSidecars = {"-journal"_L1, "-wal"_L1, "-shm"_L1, ".db-journal"_L1,
                                         ".sqlite-journal"_L1};

constexpr std::array DownloadsDirPatterns = {"/downloads/"_L1, "\\downloads\\"_L1};
constexpr std::array DownloadedPackages = {".exe"_L1, ".msi"_L1, ".zip"_L1, ".7z"_L1};

QStringView fileNameOf(QStringView path)
{
    const qsizetype slash = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    return path.sliced(slash + 1);
}

QStringList &knownInstallPaths()
{
    static QStringList paths;
    return paths;
}

} // namespace

bool isExcludedFile(const QString &path)
{
    const QString lower = path.toLower();
    return containsAny(lower, CacheDirPatterns) || containsAny(lower, TempDirPatterns) ||
           containsAny(lower, LogDirPatterns) || containsAny(lower, UpdaterDirPatterns) ||
           endsWithAny(lower, ExcludedFilePatterns) || fileNameOf(lower).startsWith(OfficeLockMark) ||
           containsAny(lower, BrowserDataPatterns) || endsWithAny(lower, DatabaseSidecars) ||
           (containsAny(lower, DownloadsDirPatterns) && endsWithAny(lower, DownloadedPackages));
}

void setKnownInstallPaths(const QStringList &paths)
{
    QStringList comparable;
    for (const QString &path : paths)
        comparable.append(comparablePath(path));
    knownInstallPaths() = comparable;
}

} // namespace Zandrove
