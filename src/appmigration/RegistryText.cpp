#include "appmigration/RegistryText.h"

#include "appmigration/Log.h"

#include <QStringConverter>
#include <QStringMatcher>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

enum class RegistryEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian };

struct DetectedEncoding
{
    RegistryEncoding encoding = RegistryEncoding::Utf8;
    int markSize = 0; ///< bytes of the byte order mark at the beginning
};

/// Bytes in which zeros are counted.
constexpr qsizetype LargestSample = 200;
/// Share of zero bytes at every second place above which a text counts as UTF-16.
constexpr double ZerosOfUtf16 = 0.4;

QByteArray marked(const char *hex)
{
    return QByteArray::fromHex(hex);
}

std::optional<DetectedEncoding> encodingByMark(const QByteArray &bytes)
{
    if (bytes.startsWith(marked("fffe"))) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 LE with BOM";
        return DetectedEncoding{RegistryEncoding::Utf16LittleEndian, 2};
    }
    if (bytes.startsWith(marked("feff"))) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 BE with BOM";
        return DetectedEncoding{RegistryEncoding::Utf16BigEndian, 2};
    }
    if (bytes.startsWith(marked("efbbbf"))) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-8 with BOM";
        return DetectedEncoding{RegistryEncoding::Utf8, 3};
    }
    return std::nullopt;
}

/// By "Wi" or "RE", with which the header of a .reg file begins.
std::optional<DetectedEncoding> encodingByHeader(const QByteArray &bytes)
{
    if (bytes.startsWith(marked("57006900")) || bytes.startsWith(marked("52004500"))) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 LE without BOM (fast path)";
        return DetectedEncoding{RegistryEncoding::Utf16LittleEndian, 0};
    }
    if (bytes.startsWith(marked("00570069")) || bytes.startsWith(marked("00520045"))) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 BE without BOM (fast path)";
        return DetectedEncoding{RegistryEncoding::Utf16BigEndian, 0};
    }
    return std::nullopt;
}

/// ASCII in UTF-16 has a zero in every second byte: behind the letter in LE, before it in BE.
std::optional<DetectedEncoding> encodingByZeros(const QByteArray &bytes)
{
    const qsizetype sample = std::min(bytes.size(), LargestSample);
    int evenZeros = 0;
    int oddZeros = 0;
    for (qsizetype i = 0; i < sample; ++i) {
        if (bytes[i] == '\0')
            ++(i % 2 == 0 ? evenZeros : oddZeros);
    }
    const auto half = double(sample / 2);
    const double oddRatio = oddZeros / half;
    const double evenRatio = evenZeros / half;
    qCDebug(logAppMigration) << "  Heuristic: oddZeros=" << oddZeros << "evenZeros=" << evenZeros
                             << "oddRatio=" << QString::number(oddRatio, 'f', 2)
                             << "evenRatio=" << QString::number(evenRatio, 'f', 2);
    if (oddRatio > ZerosOfUtf16 && oddRatio > evenRatio) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 LE without BOM (heuristic)";
        return DetectedEncoding{RegistryEncoding::Utf16LittleEndian, 0};
    }
    if (evenRatio > ZerosOfUtf16 && evenRatio > oddRatio) {
        qCDebug(logAppMigration) << "  Detected encoding: UTF-16 BE without BOM (heuristic)";
        return DetectedEncoding{RegistryEncoding::Utf16BigEndian, 0};
    }
    return std::nullopt;
}

/// Whole code units only, and without a mark of its own.
QString decodeUtf16(QByteArrayView bytes, QStringConverter::Encoding encoding)
{
    QStringDecoder decoder(encoding);
    return decoder(bytes.first(bytes.size() / 2 * 2));
}

/// QString::replace, but in one pass however often `before` occurs: a peer's text may be hundreds of
/// megabytes of nothing else.
QString replaced(const QString &text, const QString &before, const QString &after)
{
    const QStringMatcher matcher(before, Qt::CaseInsensitive);
    QString result;
    qsizetype from = 0;
    for (qsizetype at = matcher.indexIn(text); at >= 0; at = matcher.indexIn(text, from)) {
        result.append(QStringView(text).sliced(from, at - from)).append(after);
        from = at + before.size();
    }
    return from == 0 ? text : result.append(QStringView(text).sliced(from));
}

DetectedEncoding detectEncoding(const QByteArray &bytes)
{
    std::optional<DetectedEncoding> detected = encodingByMark(bytes);
    if (!detected && bytes.size() >= 4 && bytes.size() % 2 == 0) {
        detected = encodingByHeader(bytes);
        if (!detected)
            detected = encodingByZeros(bytes);
    }
    if (!detected)
        qCDebug(logAppMigration) << "  Detected encoding: UTF-8 or ANSI (fallback)";
    return detected.value_or(DetectedEncoding{});
}

} // namespace

QString decodeRegistryText(const QByteArray &bytes)
{
    const DetectedEncoding detected = detectEncoding(bytes);
    const QByteArrayView content = QByteArrayView(bytes).sliced(detected.markSize);
    switch (detected.encoding) {
    case RegistryEncoding::Utf16LittleEndian:
        return decodeUtf16(content, QStringConverter::Utf16LE);
    case RegistryEncoding::Utf16BigEndian:
        return decodeUtf16(content, QStringConverter::Utf16BE);
    case RegistryEncoding::Utf8:
        break;
    }
    return QString::fromUtf8(content);
}

QString decodeUtf16LittleEndian(const QByteArray &bytes)
{
    return decodeUtf16(bytes, QStringConverter::Utf16LE);
}

QByteArray encodeRegistryText(const QString &text)
{
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

QByteArray registryByteOrderMark()
{
    return marked("fffe");
}

QString withUserFolders(QString text, const QString &oldUser, const QString &newUser)
{
    if (oldUser.isEmpty() || newUser.isEmpty() || oldUser == newUser)
        return text;
    for (const QString &folder : {u"\\Users\\%1\\"_s, u"/Users/%1/"_s})
        text = replaced(text, folder.arg(oldUser), folder.arg(newUser));
    return text;
}

} // namespace Zandrove
