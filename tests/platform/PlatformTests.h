#pragma once

#include "PcTest.h"

#include "platform/ExternalProgram.h"
#include "platform/FileAttributes.h"
#include "platform/Registry.h"
#include "platform/ShellLink.h"

using Platform::RegistryKey;
using Platform::ShellLink;

/// The program that the tests start; what it can do stands in Helper.cpp.
inline QString helperProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/platform_helper");
}
