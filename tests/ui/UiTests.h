#pragma once

#include <QTest>

QObject *makeConnectionPageTest();
QObject *makeLinkManagerTest();
QObject *makeMainWindowTest();
QObject *makeRunPagesTest();
QObject *makeSelectionPagesTest();
QObject *makeWidgetsTest();

/// What the main function makes a test class by.
#define ZANDROVE_UI_TEST(TestClass)                                                                          \
    QObject *make##TestClass()                                                                               \
    {                                                                                                        \
        return new TestClass;                                                                                \
    }

/// Declares the columns of a data table: columns<int, QString>("value", "shown").
template <typename... Types, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}
