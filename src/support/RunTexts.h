#pragma once

#include "core/common/RunSummary.h"

#include <QString>
#include <QStringList>

/// What both faces and the report say of a run, translated. Names and paths in them are as they came: whoever
/// shows them makes them fit for the place.
namespace Zandrove {

/// "Transfer finished, 42 of 65 files did not arrive", or how else the run ended, in one line.
[[nodiscard]] QString headlineOf(const RunSummary &summary);

/// "42 of 65 files did not arrive", with those that were there with other content; empty when all did.
[[nodiscard]] QString missingFilesText(const RunSummary &summary);

/// "12 of 40 files arrived; nothing was deleted on the Old PC".
[[nodiscard]] QString arrivedFilesText(const RunSummary &summary);

/// What is said below a list of what did not arrive of `unlisted` items that it has no row for; on the New PC
/// it can't name the files that were announced and did not come.
[[nodiscard]] QStringList unlistedTexts(const RunSummary &summary, int unlisted);

/// "no space left on drive D: of NEWBOX: 1,204 files, 3.1 GB did not fit".
[[nodiscard]] QString fullVolumeText(const FullVolume &volume);

/// What became of an application, a setting or a file, in a word or two.
[[nodiscard]] QString outcomeText(ItemOutcome outcome);

/// What a row or line calls an item: the name of a file, "[App] Acme Writer", "[Setting] Mouse".
[[nodiscard]] QString rowName(ItemKind kind, const QString &path);

/// The same of one item, with its reason. Of what was only sent, the reason says so itself.
[[nodiscard]] QString itemText(const ItemResult &item);

/// What the user had best do now, a sentence or two each; never empty for a run that is over.
[[nodiscard]] QStringList nextSteps(const RunSummary &summary);

/// "complete", "cancelledHere" and so on, for programs; not translated.
[[nodiscard]] QString endName(RunEnd end);

/// `count` with the separators of the user's country.
[[nodiscard]] QString countText(qint64 count);

} // namespace Zandrove
