#pragma once

#include <QObject>

QObject *makeAppRulesTest();
QObject *makeSearchTest();
QObject *makeScannersTest();
QObject *makeAppScannerTest();
