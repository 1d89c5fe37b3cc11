#pragma once

#include "platform/generic/RegistryTree.h"

#include <QByteArray>
#include <QString>

/// The text form in which `reg export` writes the registry, version 5.00.
namespace Zandrove::Platform {

/// The bytes of a .reg file as text, and the other way round. A file with a byte order mark is UTF-16, any
/// other UTF-8; what is written is UTF-16 LE with its mark.
[[nodiscard]] QString decodeRegistryFile(const QByteArray &bytes);
[[nodiscard]] QByteArray encodeRegistryFile(const QString &text);

/// Adds to `registry` what `text` holds: keys and values, replacements and removals. A line that says nothing
/// understandable is passed over, as is a key below an unknown root. False, with nothing changed, for a text
/// without the header line.
[[nodiscard]] bool mergeRegistryText(RegistryNode &registry, const QString &text);

/// The text of the key at `path` with everything below it, header included; of the whole registry for an
/// empty path. The header alone where there is no such key.
[[nodiscard]] QString registryText(const RegistryNode &registry, const QString &path = QString());

} // namespace Zandrove::Platform
