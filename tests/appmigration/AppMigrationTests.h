#pragma once

#include <QObject>

QObject *makePackageTest();
QObject *makeAppInstallerTest();
QObject *makeRegistryExportTest();
