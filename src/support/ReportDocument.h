#pragma once

#include "core/common/RunSummary.h"

#include <QByteArray>
#include <QString>

/// The report of a run as a document to keep. A run's end is not waited for: one that is still going on is
/// described as it stands.
namespace Zandrove {

/// A page for a person: UTF-8, in the program's language, with everything it needs in itself and no script.
/// Names and reasons that come from the other PC or from the disk are only ever text in it.
[[nodiscard]] QByteArray reportAsHtml(const RunSummary &summary);

/// The same for a program: one JSON object, UTF-8. Times are ISO 8601 with the offset from UTC.
[[nodiscard]] QByteArray reportAsJson(const RunSummary &summary);

/// Where a face puts the report of `summary`, or proposes to: in the user's documents, by a name of its own.
[[nodiscard]] QString reportPathFor(const RunSummary &summary);

/// Writes the report to the file `path`, as JSON for a name that ends in ".json", else as a page. A file of
/// that name is replaced when the new one is whole; a folder and what is no regular file stay. Returns what
/// went wrong, translated, or an empty text.
[[nodiscard]] QString saveReport(const RunSummary &summary, const QString &path);

} // namespace Zandrove
