#include "platform/ShellLink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr qint64 LargestFile = qint64(1024) * 1024; // bytes

constexpr QLatin1StringView Title = "[ShellLink]"_L1;
constexpr std::array FieldNames = {"Path="_L1,     "Arguments="_L1, "WorkingDirectory="_L1,
                                   "IconPath="_L1, "IconIndex="_L1, "Description="_L1};
using Fields = std::array<QString, FieldNames.size()>;

std::optional<QString> readText(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringDecoder decoder(QStringConverter::Utf8);
    QString text = decoder(file.readAll());
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

std::optional<Fields> fieldsOf(QString text)
{
    if (text.endsWith(u'\n'))
        text.chop(1);
    const QStringList lines = text.split(u'\n');
    if (lines.size() != qsizetype(FieldNames.size()) + 1 || lines.first() != Title)
        return std::nullopt;
    Fields fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const QString &line = lines[qsizetype(i) + 1];
        if (!line.startsWith(FieldNames[i]))
            return std::nullopt;
        fields[i] = line.mid(FieldNames[i].size());
    }
    return fields;
}

} // namespace

std::optional<ShellLink> readShellLink(const QString &file)
{
    const std::optional<QString> text = readText(file);
    const std::optional<Fields> fields = text ? fieldsOf(*text) : std::nullopt;
    if (!fields)
        return std::nullopt;
    const auto &[path, arguments, workingDirectory, iconPath, iconIndex, description] = *fields;
    bool isNumber = false;
    const int index = iconIndex.toInt(&isNumber);
    if (!isNumber)
        return std::nullopt;
    return ShellLink{path, arguments, workingDirectory, iconPath, index, description};
}

bool writeShellLink(const QString &file, const ShellLink &link)
{
    const Fields fields = {link.path,
                           link.arguments,
                           link.workingDirectory,
                           link.iconPath,
                           QString::number(link.iconPath.isEmpty() ? 0 : link.iconIndex),
                           link.description};
    if (std::any_of(fields.begin(), fields.end(), [](const QString &field) { return field.contains(u'\n'); }))
        return false;
    const QFileInfo info(file);
    if (info.dir().isRoot() || !QDir().mkpath(info.path()))
        return false;
    QString text = Title + u'\n';
    for (std::size_t i = 0; i < fields.size(); ++i)
        text += FieldNames[i] + fields[i] + u'\n';
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly))
        return false;
    target.write(text.toUtf8());
    return target.commit();
}

} // namespace Zandrove::Platform
