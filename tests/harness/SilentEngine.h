#pragma once

#include "SilentLink.h"

#include "core/engine/TransferEngine.h"
