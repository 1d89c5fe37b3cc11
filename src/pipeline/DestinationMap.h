#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The New PC's side of the layout that both PCs share: where a relative path lands, and under which heading
/// the report shows it.
namespace Zandrove {

/// Folder that holds the files of applications while they are in transit.
[[nodiscard]] QString receivedAppsFolder();

/// Whether `relativePath`, with '/' between components, belongs to an application.
[[nodiscard]] bool isAppPath(const QString &relativePath);

/// The application that the file `relativePath` belongs to, as the path names it; empty for another file.
[[nodiscard]] QString appOfPath(const QString &relativePath);

/// Where the file `relativePath` of the peer belongs on this PC: in the standard folder that its first
/// component names, in the received-applications folder, or else below `destinationRoot` (empty: "Zandrove"
/// in the downloads). A plain mapping: nothing is checked or created.
[[nodiscard]] QString destinationFor(const QString &relativePath, const QString &destinationRoot);

/// What was received, by category: a standard folder's name or "Received Files".
class ReceivedFolders final
{
public:
    QMap<QString, int> counts;          ///< files
    QMap<QString, QString> paths;       ///< folder shown for the category
    QMap<QString, QStringList> folders; ///< names of the top folders received

    void clear() { *this = ReceivedFolders(); }

    /// Notes a file that arrived whole. Files of applications are not part of the record. `destinationPath`
    /// may be empty for a file that was left alone; it is counted, and names no folder. `otherCategory` is
    /// the heading for files outside the standard folders.
    void record(const QString &relativePath, const QString &destinationPath, const QString &otherCategory);

    /// The first few names of each category, as they are shown: "(a, b, c, ...)".
    [[nodiscard]] QMap<QString, QString> samples() const;
};

} // namespace Zandrove
