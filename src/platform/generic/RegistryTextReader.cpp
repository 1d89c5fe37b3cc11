#include "platform/RegistryPath.h"
#include "platform/generic/RegistryText.h"

#include <QStringDecoder>

#include <limits>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// What the registry itself allows.
constexpr qsizetype DeepestLevel = 512;

/// Reads one text from its beginning to its end; a position never goes back.
class Reader final
{
public:
    Reader(RegistryNode &registry, QStringView text)
        : m_registry(registry)
        , m_text(text)
    {
    }

    void readAll()
    {
        while (!atEnd()) {
            skipBlanks();
            readLine();
            skipLine();
        }
    }

private:
    [[nodiscard]] bool atEnd() const { return m_position >= m_text.size(); }
    [[nodiscard]] QChar current() const { return atEnd() ? QChar() : m_text[m_position]; }
    [[nodiscard]] QStringView restOfLine() const;
    [[nodiscard]] bool take(QLatin1StringView word);
    void skipBlanks();
    void skipLine();

    void readLine();
    void readKey();
    void readValue();
    [[nodiscard]] std::optional<QString> readQuoted();
    [[nodiscard]] QChar readEscaped();
    [[nodiscard]] std::optional<RegistryValue> readData();
    [[nodiscard]] std::optional<RegistryValue> readNumber32();
    [[nodiscard]] std::optional<RegistryValue> readHex();
    [[nodiscard]] std::optional<quint32> takeHexNumber(qsizetype mostDigits);
    [[nodiscard]] bool continuesOnNextLine();

    RegistryNode &m_registry;
    RegistryNode *m_key = nullptr; ///< the key whose values come next; null below one that is left out
    QStringView m_text;
    qsizetype m_position = 0;
};

QStringView Reader::restOfLine() const
{
    const qsizetype end = m_text.indexOf(u'\n', m_position);
    return m_text.sliced(m_position, (end < 0 ? m_text.size() : end) - m_position).trimmed();
}

bool Reader::take(QLatin1StringView word)
{
    if (!m_text.sliced(m_position).startsWith(word, Qt::CaseInsensitive))
        return false;
    m_position += word.size();
    return true;
}

void Reader::skipBlanks()
{
    while (current() == u' ' || current() == u'\t' || current() == u'\r')
        ++m_position;
}

void Reader::skipLine()
{
    const qsizetype end = m_text.indexOf(u'\n', m_position);
    m_position = end < 0 ? m_text.size() : end + 1;
}

void Reader::readLine()
{
    if (current() == u'[')
        readKey();
    else if (current() == u'@' || current() == u'"')
        readValue();
}

void Reader::readKey()
{
    m_key = nullptr;
    const QStringView line = restOfLine();
    const qsizetype close = line.lastIndexOf(u']');
    const bool removes = line.startsWith("[-"_L1);
    const qsizetype begin = removes ? 2 : 1;
    if (close < begin)
        return;
    const auto key = splitRegistryPath(line.sliced(begin, close - begin).toString());
    if (!key || key->below.count(u'\\') >= DeepestLevel)
        return;
    const QString path = key->below.isEmpty() ? key->root : key->root + u'\\' + key->below;
    if (removes)
        m_registry.remove(path);
    else
        m_key = &m_registry.make(path);
}

void Reader::readValue()
{
    const std::optional<QString> name = take("@"_L1) ? QString(u""_s) : readQuoted();
    skipBlanks();
    if (!name || !take("="_L1))
        return;
    skipBlanks();
    const bool removes = current() == u'-';
    const std::optional<RegistryValue> value = removes ? std::nullopt : readData();
    if (m_key == nullptr)
        return;
    if (removes)
        m_key->values.erase(*name);
    else if (value)
        m_key->values.insert_or_assign(*name, *value);
}

/// A quoted text; one that holds a line break goes on in the next line.
std::optional<QString> Reader::readQuoted()
{
    QString text = u""_s;
    ++m_position;
    for (; !atEnd(); ++m_position) {
        if (current() == u'"') {
            ++m_position;
            return text;
        }
        text.append(current() == u'\\' ? readEscaped() : current());
    }
    return std::nullopt;
}

/// The character that the backslash here and the one behind it stand for. Leaves the position
/// on the last of them.
QChar Reader::readEscaped()
{
    const QChar next = m_position + 1 < m_text.size() ? m_text[m_position + 1] : QChar();
    if (next != u'\\' && next != u'"' && next != u'n' && next != u'r')
        return u'\\';
    ++m_position;
    if (next == u'n')
        return u'\n';
    return next == u'r' ? u'\r' : next;
}

std::optional<RegistryValue> Reader::readData()
{
    if (current() == u'"') {
        const std::optional<QString> text = readQuoted();
        return text ? std::optional(textValue(*text)) : std::nullopt;
    }
    if (take("dword:"_L1))
        return readNumber32();
    if (take("hex"_L1))
        return readHex();
    return std::nullopt;
}

std::optional<RegistryValue> Reader::readNumber32()
{
    constexpr qsizetype Digits = 8;
    const std::optional<quint32> number = takeHexNumber(Digits);
    if (!number)
        return std::nullopt;
    QByteArray data;
    for (int shift = 0; shift < std::numeric_limits<quint32>::digits; shift += 8)
        data.append(char(*number >> shift & 0xff));
    return RegistryValue{ValueType::Number32, data};
}

/// What stands behind "hex": a type in brackets, which may be missing, a colon, and
/// bytes with commas between them.
std::optional<RegistryValue> Reader::readHex()
{
    RegistryValue value = {ValueType::Binary, {}};
    if (take("("_L1)) {
        constexpr qsizetype Digits = 8;
        const std::optional<quint32> type = takeHexNumber(Digits);
        if (!type || !take(")"_L1))
            return std::nullopt;
        value.type = ValueType(*type);
    }
    if (!take(":"_L1))
        return std::nullopt;
    do {
        skipBlanks();
        if (const std::optional<quint32> byte = takeHexNumber(2))
            value.data.append(char(*byte));
        skipBlanks();
    } while (take(","_L1) || continuesOnNextLine());
    return value;
}

std::optional<quint32> Reader::takeHexNumber(qsizetype mostDigits)
{
    qsizetype digits = 0;
    while (digits < mostDigits && m_position + digits < m_text.size() &&
           u"0123456789abcdefABCDEF"_s.contains(m_text[m_position + digits]))
        ++digits;
    if (digits == 0)
        return std::nullopt;
    const QStringView number = m_text.sliced(m_position, digits);
    m_position += digits;
    return number.toUInt(nullptr, 16);
}

/// Goes past a backslash that ends this line, if there is one.
bool Reader::continuesOnNextLine()
{
    if (restOfLine() != u'\\')
        return false;
    skipLine();
    return !atEnd();
}

} // namespace

QString decodeRegistryFile(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding)(bytes);
}

bool mergeRegistryText(RegistryNode &registry, const QString &text)
{
    const qsizetype lineEnd = text.indexOf(u'\n');
    const QStringView header = QStringView(text).first(lineEnd < 0 ? text.size() : lineEnd).trimmed();
    if (header != "Windows Registry Editor Version 5.00"_L1)
        return false;
    Reader(registry, QStringView(text).sliced(lineEnd < 0 ? text.size() : lineEnd)).readAll();
    return true;
}

} // namespace Zandrove::Platform
