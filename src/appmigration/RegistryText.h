#pragma once

#include <QByteArray>
#include <QString>

/// The content of .reg files: bytes in and text out, and back. What a peer sent can be in any encoding.
namespace Zandrove {

/// The text of a .reg file in whatever encoding, without its byte order mark. The mark tells how it is
/// encoded, else the first letters of a .reg file's header, else where the zero bytes lie in the first 200;
/// UTF-8 when nothing tells. Logs what decided. An odd byte at the end of UTF-16 is dropped; what is no UTF-8
/// comes back as replacement characters.
[[nodiscard]] QString decodeRegistryText(const QByteArray &bytes);

/// The text of `bytes` in UTF-16 LE, without looking for a mark. An odd byte at the end is dropped.
[[nodiscard]] QString decodeUtf16LittleEndian(const QByteArray &bytes);

/// `text` as the content of a .reg file: UTF-16 LE behind its byte order mark.
[[nodiscard]] QByteArray encodeRegistryText(const QString &text);

/// The mark of UTF-16 LE.
[[nodiscard]] QByteArray registryByteOrderMark();

/// `text` with each folder below `oldUser`'s profile ("\Users\anna\", "/Users/anna/", any letter case) moved
/// to that of `newUser`. Backslashes that are doubled, as in the values of a .reg file, do not match. The
/// same text when one of the names is empty or both are equal.
[[nodiscard]] QString withUserFolders(QString text, const QString &oldUser, const QString &newUser);

} // namespace Zandrove
