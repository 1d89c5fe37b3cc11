#pragma once

#include <QObject>

QObject *makeChromeTest();
QObject *makeConnectionPageTest();
QObject *makeDrawingTest();
QObject *makeFileBrowserTest();
QObject *makeLinkManagerTest();
QObject *makeMainWindowTest();
QObject *makeRunPagesTest();
QObject *makeSelectionPagesTest();
QObject *makeWidgetsTest();
