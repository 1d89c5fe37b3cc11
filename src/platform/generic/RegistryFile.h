#pragma once

#include "platform/generic/RegistryTree.h"

#include <functional>

/// The .reg file that is the registry where the system has none.
namespace Zandrove::Platform {

/// The file that the environment variable ZANDROVE_REGISTRY names; empty where it names none.
[[nodiscard]] QString registryFileName();

[[nodiscard]] bool registryFileExists();

/// What the file holds now; an empty registry where there is no file, or one that is not
/// a .reg file. Never null.
[[nodiscard]] std::shared_ptr<const RegistryNode> readRegistryFile();

/// Changes what the file holds; it is made where it is missing. Changes from other threads and programs are
/// kept out meanwhile. False, with nothing changed, where no file is named, where it is not a .reg file or
/// can't be written, or where `change` says false.
[[nodiscard]] bool changeRegistryFile(const std::function<bool(RegistryNode &registry)> &change);

} // namespace Zandrove::Platform
