#pragma once

#include <QByteArray>
#include <QObject>

QObject *makePipelineRulesTest();
QObject *makeFileSenderTest();
QObject *makeFileReceiverTest();
QObject *makeMigrationManagerTest();
QObject *makeRunLanesTest();

/// `size` bytes without a pattern that a chunk size could hide.
inline QByteArray someBytes(qsizetype size, quint32 seed = 1)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes) {
        seed = seed * 1664525u + 1013904223u;
        byte = char(seed >> 24);
    }
    return bytes;
}
