#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QString>

QObject *makeFilesTest();
QObject *makeProgramTest();
QObject *makeRegistryTest();
QObject *makeTerminalTest();

/// What only one of the systems has: the simulated PC's own ways, or the calls of Windows.
QObject *makeSystemTest();

/// The program that the tests start; what it can do stands in Helper.cpp.
inline QString helperProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/platform_helper");
}
