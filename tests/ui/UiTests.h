#pragma once

#include <QTest>

QObject *makeConnectionPageTest();
QObject *makeLinkManagerTest();
QObject *makeMainWindowTest();
QObject *makeRunPagesTest();
QObject *makeSelectionPagesTest();
QObject *makeWidgetsTest();

/// Declares the columns of a data table: columns<int, QString>("value", "shown").
template <typename... Types, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}
