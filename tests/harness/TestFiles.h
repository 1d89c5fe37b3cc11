#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Files as tests make and judge them, and what is in them.
namespace Zandrove {

/// What the file holds; "<no file>" where it can't be read.
[[nodiscard]] inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
}

/// Writes a file with its folders. Returns its path.
inline QString writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written.", qPrintable(path));
    return path;
}

/// `size` bytes without a pattern that a chunk size could hide.
inline QByteArray someBytes(qsizetype size)
{
    quint32 seed = 1;
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes) {
        seed = seed * 1664525u + 1013904223u;
        byte = char(seed >> 24);
    }
    return bytes;
}

} // namespace Zandrove
