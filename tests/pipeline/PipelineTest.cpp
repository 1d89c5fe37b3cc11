#include "TestMain.h"

QObject *makeRunLanesTest();

[[maybe_unused]] static const auto &addedRunLanesTest =
    Zandrove::TestMain::makers().emplaceBack([] { return std::unique_ptr<QObject>(makeRunLanesTest()); });
