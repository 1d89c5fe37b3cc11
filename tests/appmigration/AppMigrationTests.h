#pragma once

#include <QObject>

QObject *makePackageTest();
QObject *makeAppAnalyzerTest();
QObject *makeAppInstallerTest();
QObject *makeRegistryExportTest();
