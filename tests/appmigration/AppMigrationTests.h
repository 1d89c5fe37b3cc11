#pragma once

#include <QObject>

QObject *makeAppMigratorTest();
QObject *makePackageTest();
QObject *makeAppAnalyzerTest();
QObject *makeAppInstallerTest();
QObject *makeRegistryExportTest();
