#pragma once

#include <QObject>

#include <memory>

/// The test classes of this folder.
[[nodiscard]] std::unique_ptr<QObject> makeSettingPackageTest();
[[nodiscard]] std::unique_ptr<QObject> makeSettingMigratorTest();
