#include "platform/Registry.h"

#include "platform/RegistryPath.h"
#include "platform/generic/RegistryFile.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// Where the 32-bit view of a key lies in the registry as a whole.
QString pathSeenBy32Bit(const QString &path)
{
    const QString shared = u"HKEY_LOCAL_MACHINE\\SOFTWARE"_s;
    const QString redirected = shared + u"\\WOW6432Node"_s;
    const QString slashed = path + u'\\';
    if (!slashed.startsWith(shared + u'\\', Qt::CaseInsensitive) ||
        slashed.startsWith(redirected + u'\\', Qt::CaseInsensitive))
        return path;
    return redirected + path.mid(shared.size());
}

/// The path of a key in the .reg file; empty for a key that can't exist.
QString pathInFile(const QString &path, RegistryView view)
{
    const auto parts = splitRegistryPath(path);
    if (!parts)
        return {};
    const QString whole = parts->below.isEmpty() ? parts->root : parts->root + u'\\' + parts->below;
    return view == RegistryView::View32 ? pathSeenBy32Bit(whole) : whole;
}

QString nameInFile(const QString &valueName)
{
    return valueName == u"." ? QString(u""_s) : valueName;
}

QString nameForReaders(const QString &nameInFile)
{
    return nameInFile.isEmpty() ? u"."_s : nameInFile;
}

/// Every code unit of the data, which is what other readers make of bytes.
QString bytesAsText(const QByteArray &data)
{
    QString text;
    for (qsizetype i = 0; i + 1 < data.size(); i += 2)
        text.append(QChar(uchar(data[i]), uchar(data[i + 1])));
    return text;
}

QString asText(const RegistryValue &value)
{
    if (const std::optional<quint64> number = numberOf(value))
        return QString::number(qint64(*number));
    switch (value.type) {
    case ValueType::Text:
    case ValueType::ExpandableText:
        return textOf(value.data);
    case ValueType::TextList:
        return textListOf(value.data).join(u'\n');
    default:
        return bytesAsText(value.data);
    }
}

} // namespace

class RegistryKey::Source
{
public:
    Source(QString keyPath, RegistryView keyView)
        : path(std::move(keyPath))
        , view(keyView)
    {
        read();
    }

    void read()
    {
        registry = readRegistryFile();
        const QString whole = pathInFile(path, view);
        node = whole.isEmpty() ? nullptr : registry->find(whole);
    }

    [[nodiscard]] const RegistryValue *find(const QString &name) const
    {
        if (node == nullptr)
            return nullptr;
        const auto value = node->values.find(nameInFile(name));
        return value == node->values.end() ? nullptr : &value->second;
    }

    QString path;
    RegistryView view;
    std::shared_ptr<const RegistryNode> registry; ///< keeps the node
    const RegistryNode *node = nullptr;
};

RegistryKey::RegistryKey(const QString &path, RegistryView view)
    : m_source(std::make_unique<Source>(path, view))
{
}

RegistryKey::~RegistryKey() = default;
RegistryKey::RegistryKey(RegistryKey &&) noexcept = default;
RegistryKey &RegistryKey::operator=(RegistryKey &&) noexcept = default;

bool RegistryKey::exists() const
{
    return m_source->node != nullptr;
}

QStringList RegistryKey::subkeyNames() const
{
    QStringList names;
    if (m_source->node != nullptr) {
        for (const auto &[name, subkey] : m_source->node->subkeys)
            names.append(name);
    }
    names.sort();
    return names;
}

QStringList RegistryKey::valueNames() const
{
    QStringList names;
    if (m_source->node != nullptr) {
        for (const auto &[name, value] : m_source->node->values)
            names.append(nameForReaders(name));
    }
    names.sort();
    return names;
}

RegistryKey RegistryKey::subkey(const QString &name) const
{
    return RegistryKey(m_source->path + u'\\' + name, m_source->view);
}

bool RegistryKey::hasValue(const QString &name) const
{
    return m_source->find(name) != nullptr;
}

QString RegistryKey::text(const QString &name, const QString &fallback) const
{
    const RegistryValue *const value = m_source->find(name);
    return value == nullptr ? fallback : asText(*value);
}

qint64 RegistryKey::number(const QString &name, qint64 fallback) const
{
    bool isNumber = false;
    const qint64 number = text(name).toLongLong(&isNumber);
    return isNumber ? number : fallback;
}

QStringList RegistryKey::texts(const QString &name) const
{
    const RegistryValue *const value = m_source->find(name);
    if (value == nullptr)
        return {};
    return value->type == ValueType::TextList ? textListOf(value->data) : QStringList(asText(*value));
}

bool RegistryKey::setText(const QString &name, const QString &text)
{
    const QString path = pathInFile(m_source->path, m_source->view);
    if (path.isEmpty())
        return false;
    const bool written = changeRegistryFile([&](RegistryNode &registry) {
        RegistryValue &value = registry.make(path).values[nameInFile(name)];
        const bool expands = value.type == ValueType::ExpandableText;
        value = textValue(text, expands ? ValueType::ExpandableText : ValueType::Text);
        return true;
    });
    m_source->read();
    return written;
}

} // namespace Zandrove::Platform
