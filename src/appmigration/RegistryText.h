#pragma once

#include <QByteArray>
#include <QString>

/// The content of .reg files: bytes in and text out, and back. What a peer sent can be in any encoding.
namespace Zandrove {

enum class RegistryEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian };

struct DetectedEncoding
{
    RegistryEncoding encoding = RegistryEncoding::Utf8;
    int markSize = 0; ///< bytes of the byte order mark at the beginning

    bool operator==(const DetectedEncoding &) const = default;
};

/// How `bytes` are encoded: by a byte order mark, else by the first letters of a .reg file's header, else by
/// where the zero bytes lie in the first 200; UTF-8 when nothing tells. Logs what decided.
[[nodiscard]] DetectedEncoding detectRegistryEncoding(const QByteArray &bytes);

/// The text of a .reg file in whatever encoding is detected, without the mark. An odd byte at the end of
/// UTF-16 is dropped; what is no UTF-8 comes back as replacement characters.
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
