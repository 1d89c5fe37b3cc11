#include "platform/generic/RegistryTree.h"

#include <QtEndian>

namespace Zandrove::Platform {

namespace {

qsizetype unitsOf(const QByteArray &data)
{
    return data.size() / qsizetype(sizeof(char16_t));
}

char16_t unitAt(const QByteArray &data, qsizetype index)
{
    return qFromLittleEndian<char16_t>(data.constData() + index * qsizetype(sizeof(char16_t)));
}

/// The text that begins at unit `begin` and ends before the next zero, or with the data.
QString textFrom(const QByteArray &data, qsizetype begin)
{
    QString text;
    for (qsizetype i = begin; i < unitsOf(data) && unitAt(data, i) != 0; ++i)
        text.append(QChar(unitAt(data, i)));
    return text;
}

template <typename Node>
Node *findBelow(Node *node, const QString &path)
{
    for (const QString &name : path.split(u'\\', Qt::SkipEmptyParts)) {
        const auto child = node->subkeys.find(name);
        if (child == node->subkeys.end())
            return nullptr;
        node = child->second.get();
    }
    return node;
}

} // namespace

RegistryValue textValue(const QString &text, ValueType type)
{
    QByteArray data;
    for (const QChar unit : text)
        data.append(char(unit.cell())).append(char(unit.row()));
    return {type, data.append(2, '\0')};
}

QString textOf(const QByteArray &data)
{
    return textFrom(data, 0);
}

QStringList textListOf(const QByteArray &data)
{
    QStringList texts;
    for (qsizetype begin = 0; begin < unitsOf(data); begin += texts.last().size() + 1) {
        const QString text = textFrom(data, begin);
        if (text.isEmpty())
            break;
        texts.append(text);
    }
    return texts;
}

std::optional<quint64> numberOf(const RegistryValue &value)
{
    if (value.type == ValueType::Number32 && value.data.size() == sizeof(quint32))
        return qFromLittleEndian<quint32>(value.data.constData());
    if (value.type == ValueType::Number64 && value.data.size() == sizeof(quint64))
        return qFromLittleEndian<quint64>(value.data.constData());
    return std::nullopt;
}

const RegistryNode *RegistryNode::find(const QString &path) const
{
    return findBelow(this, path);
}

RegistryNode *RegistryNode::find(const QString &path)
{
    return findBelow(this, path);
}

RegistryNode &RegistryNode::make(const QString &path)
{
    RegistryNode *node = this;
    for (const QString &name : path.split(u'\\', Qt::SkipEmptyParts)) {
        std::unique_ptr<RegistryNode> &child = node->subkeys[name];
        if (!child)
            child = std::make_unique<RegistryNode>();
        node = child.get();
    }
    return *node;
}

bool RegistryNode::remove(const QString &path)
{
    const qsizetype split = path.lastIndexOf(u'\\');
    RegistryNode *const parent = find(split < 0 ? QString() : path.left(split));
    return parent != nullptr && parent->subkeys.erase(path.mid(split + 1)) > 0;
}

} // namespace Zandrove::Platform
