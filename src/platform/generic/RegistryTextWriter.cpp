#include "platform/generic/RegistryText.h"

#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// A line of bytes that has grown longer than this goes on in the next one.
constexpr qsizetype LongestByteLine = 77;

QString quoted(const QString &text)
{
    QString escaped = text;
    escaped.replace(u'\\', u"\\\\"_s)
        .replace(u'"', u"\\\""_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s);
    return u'"' + escaped + u'"';
}

QString hexNumber(quint32 number, int digits)
{
    return u"%1"_s.arg(number, digits, 16, QChar(u'0'));
}

QString hexPrefix(ValueType type)
{
    return type == ValueType::Binary ? u"hex:"_s : u"hex(%1):"_s.arg(hexNumber(quint32(type), 1));
}

void appendBytes(QString &out, qsizetype lineBegin, const QByteArray &data)
{
    for (qsizetype i = 0; i < data.size(); ++i) {
        out += hexNumber(quint8(data[i]), 2);
        if (i + 1 == data.size())
            return;
        out += u',';
        if (out.size() - lineBegin > LongestByteLine) {
            out += "\\\r\n"_L1;
            lineBegin = out.size();
            out += "  "_L1;
        }
    }
}

void appendValue(QString &out, const QString &name, const RegistryValue &value)
{
    const qsizetype lineBegin = out.size();
    out += name.isEmpty() ? u"@="_s : quoted(name) + u'=';
    const std::optional<quint64> number = numberOf(value);
    if (value.type == ValueType::Text && value == textValue(textOf(value.data))) {
        out += quoted(textOf(value.data));
    } else if (value.type == ValueType::Number32 && number) {
        out += "dword:"_L1 + hexNumber(quint32(*number), 8);
    } else {
        out += hexPrefix(value.type);
        appendBytes(out, lineBegin, value.data);
    }
    out += "\r\n"_L1;
}

void appendKey(QString &out, const QString &path, const RegistryNode &key)
{
    out += u'[' + path + "]\r\n"_L1;
    for (const auto &[name, value] : key.values)
        appendValue(out, name, value);
    out += "\r\n"_L1;
    for (const auto &[name, subkey] : key.subkeys)
        appendKey(out, path + u'\\' + name, *subkey);
}

} // namespace

QByteArray encodeRegistryFile(const QString &text)
{
    return QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(text);
}

QString registryText(const RegistryNode &registry, const QString &path)
{
    QString text = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;
    if (path.isEmpty()) {
        for (const auto &[name, root] : registry.subkeys)
            appendKey(text, name, *root);
    } else if (const RegistryNode *const key = registry.find(path)) {
        appendKey(text, path, *key);
    }
    return text;
}

} // namespace Zandrove::Platform
