#pragma once

#include "core/common/License.h"

#include <QImage>
#include <QTest>
#include <QWidget>

#include <functional>

QObject *makeChromeTest();
QObject *makeConnectionPageTest();
QObject *makeDrawingTest();
QObject *makeFileBrowserTest();
QObject *makeLinkManagerTest();
QObject *makeMainWindowTest();
QObject *makeRunPagesTest();
QObject *makeSelectionPagesTest();
QObject *makeWidgetsTest();

namespace Zandrove {

/// Declares the columns of a data table: columns<int, QString>("value", "shown").
template <typename... Types, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// What `widget` and its children paint, on nothing.
[[nodiscard]] QImage pictureOf(QWidget &widget);

/// How many lines of the log begin with `start` while `action` runs. None of them is shown.
[[nodiscard]] int countLogLines(QLatin1StringView start, const std::function<void()> &action);

class UnregisteredCopy final : public License
{
public:
    [[nodiscard]] bool isRegistered() const override { return registered; }
    [[nodiscard]] bool registerCopy() override { return registered = registers; }

    bool registered = false;
    bool registers = false; ///< whether an attempt succeeds
};

} // namespace Zandrove
