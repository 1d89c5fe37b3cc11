#pragma once

#include <QObject>

QObject *makePackageTest();
