#pragma once

#include <QObject>

QObject *makeConnectionPageTest();
QObject *makeDrawingTest();
QObject *makeMainWindowTest();
QObject *makeRunPagesTest();
QObject *makeSelectionPagesTest();
QObject *makeWidgetsTest();
