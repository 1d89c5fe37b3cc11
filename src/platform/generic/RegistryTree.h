#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>

namespace Zandrove::Platform {

/// Registry value types, by the numbers that the registry itself uses.
enum class ValueType : quint32 {
    None = 0,
    Text = 1,
    ExpandableText = 2,
    Binary = 3,
    Number32 = 4,
    TextList = 7,
    Number64 = 11,
};

/// A value as the registry holds it: texts are UTF-16 with their terminating zeros, numbers little-endian.
struct RegistryValue
{
    ValueType type = ValueType::None;
    QByteArray data;

    bool operator==(const RegistryValue &) const = default;
};

[[nodiscard]] RegistryValue textValue(const QString &text, ValueType type = ValueType::Text);

/// The text up to the first zero, the way every reader of the registry takes it.
[[nodiscard]] QString textOf(const QByteArray &data);
[[nodiscard]] QStringList textListOf(const QByteArray &data);
[[nodiscard]] std::optional<quint64> numberOf(const RegistryValue &value);

struct NameOrder
{
    bool operator()(const QString &left, const QString &right) const
    {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    }
};

/// A key with everything below it. The root node's subkeys are the registry's roots by their long names. A
/// path is the names from the root node down, joined by backslashes.
struct RegistryNode
{
    std::map<QString, RegistryValue, NameOrder> values; ///< the value without a name has an empty one
    std::map<QString, std::unique_ptr<RegistryNode>, NameOrder> subkeys;

    /// The node at `path`; null where there is none.
    [[nodiscard]] const RegistryNode *find(const QString &path) const;
    [[nodiscard]] RegistryNode *find(const QString &path);
    /// The node at `path`, made with all its parents where it is missing.
    RegistryNode &make(const QString &path);
    /// Removes the node at `path` with everything below it. False where there is none.
    bool remove(const QString &path);
};

} // namespace Zandrove::Platform
