#include "StandIn.h"

#include "platform/RegistryPath.h"
#include "platform/generic/RegistryFile.h"
#include "platform/generic/RegistryText.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using namespace Zandrove::Platform;

namespace Zandrove::StandIn {

namespace {

struct TypeName
{
    ValueType type;
    QLatin1StringView name;
};

constexpr std::array TypeNames = {
    TypeName{ValueType::Text, "REG_SZ"_L1},           TypeName{ValueType::ExpandableText, "REG_EXPAND_SZ"_L1},
    TypeName{ValueType::TextList, "REG_MULTI_SZ"_L1}, TypeName{ValueType::Number32, "REG_DWORD"_L1},
    TypeName{ValueType::Number64, "REG_QWORD"_L1},    TypeName{ValueType::Binary, "REG_BINARY"_L1},
    TypeName{ValueType::None, "REG_NONE"_L1}};

int failForMissing()
{
    return fail(u"ERROR: The system was unable to find the specified registry key or value."_s);
}

int finish(bool done)
{
    if (!done)
        return fail(u"ERROR: Access is denied."_s);
    print(u"The operation completed successfully."_s);
    return Succeeded;
}

/// The key that a caller names, as a path in the registry file; empty for one below no known root.
QString pathOf(const QString &key)
{
    const auto parts = splitRegistryPath(key);
    if (!parts)
        return {};
    return parts->below.isEmpty() ? parts->root : parts->root + u'\\' + parts->below;
}

/// What stands behind a switch such as "/v"; nothing where the switch is missing.
std::optional<QString> option(const QStringList &arguments, QLatin1StringView name)
{
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i].compare(name, Qt::CaseInsensitive) == 0)
            return arguments.value(i + 1);
    }
    return std::nullopt;
}

/// The value that "/v" or "/ve" names; nothing where the call is about the key itself.
std::optional<QString> valueName(const QStringList &arguments)
{
    return arguments.contains("/ve"_L1, Qt::CaseInsensitive) ? QString(u""_s) : option(arguments, "/v"_L1);
}

QByteArray littleEndian(quint64 number, int bytes)
{
    QByteArray data;
    for (int i = 0; i < bytes; ++i)
        data.append(char(number >> (8 * i) & 0xff));
    return data;
}

RegistryValue valueOf(ValueType type, const QString &text)
{
    switch (type) {
    case ValueType::Number32:
        return {type, littleEndian(text.toULongLong(nullptr, 0), 4)};
    case ValueType::Number64:
        return {type, littleEndian(text.toULongLong(nullptr, 0), 8)};
    case ValueType::Binary:
    case ValueType::None:
        return {type, QByteArray::fromHex(text.toLatin1())};
    case ValueType::TextList: {
        const QString items = QString(text).replace("\\0"_L1, QString(QChar::Null)) + QChar::Null;
        return textValue(items, type);
    }
    default:
        return textValue(text, type);
    }
}

int exportKey(const QString &path, const QStringList &arguments)
{
    const auto registry = readRegistryFile();
    if (registry->find(path) == nullptr)
        return failForMissing();
    QFile file(arguments.value(2));
    if (file.exists() && !arguments.contains("/y"_L1, Qt::CaseInsensitive))
        return fail(u"ERROR: The file exists already."_s);
    return finish(file.open(QIODevice::WriteOnly) &&
                  file.write(encodeRegistryFile(registryText(*registry, path))) > 0);
}

int importFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(u"ERROR: Error opening the file. There may be a disk or file system error."_s);
    const QString text = decodeRegistryFile(file.readAll());
    return finish(
        changeRegistryFile([&text](RegistryNode &registry) { return mergeRegistryText(registry, text); }));
}

int addValue(const QString &path, const QStringList &arguments)
{
    const QString typeName = option(arguments, "/t"_L1).value_or(u"REG_SZ"_s);
    const auto *const type =
        std::find_if(TypeNames.begin(), TypeNames.end(), [&typeName](const TypeName &known) {
            return typeName.compare(known.name, Qt::CaseInsensitive) == 0;
        });
    if (type == TypeNames.end())
        return fail(u"ERROR: Invalid syntax."_s);
    return finish(changeRegistryFile([&](RegistryNode &registry) {
        RegistryNode &key = registry.make(path);
        if (const std::optional<QString> name = valueName(arguments))
            key.values[*name] = valueOf(type->type, option(arguments, "/d"_L1).value_or(QString()));
        return true;
    }));
}

int deleteKey(const QString &path, const QStringList &arguments)
{
    const std::optional<QString> name = valueName(arguments);
    const auto registry = readRegistryFile();
    const RegistryNode *const key = registry->find(path);
    if (key == nullptr || (name && !key->values.contains(*name)))
        return failForMissing();
    return finish(changeRegistryFile([&](RegistryNode &changed) {
        if (name)
            changed.make(path).values.erase(*name);
        else
            changed.remove(path);
        return true;
    }));
}

} // namespace

int runReg(const QStringList &arguments)
{
    const QString action = arguments.value(0).toLower();
    if (action == "import"_L1 && arguments.size() == 2)
        return importFile(arguments[1]);
    const QString path = pathOf(arguments.value(1));
    if (path.isEmpty())
        return fail(u"ERROR: Invalid key name."_s);
    if (action == "export"_L1 && arguments.size() >= 3)
        return exportKey(path, arguments);
    if (action == "add"_L1)
        return addValue(path, arguments);
    if (action == "delete"_L1)
        return deleteKey(path, arguments);
    return fail(u"ERROR: Invalid syntax."_s);
}

} // namespace Zandrove::StandIn
