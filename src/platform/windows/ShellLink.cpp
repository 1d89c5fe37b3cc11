#include "platform/ShellLink.h"

#include "platform/windows/ComPtr.h"
#include "platform/windows/NativePath.h"

#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

#include <shlobj.h>

#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr std::size_t PathRoom = MAX_PATH; // characters
constexpr std::size_t TextRoom = 1024;

/// The text that `read` puts into a buffer of `Room` characters; empty where it fails.
template <std::size_t Room, typename Read>
QString textFrom(Read read)
{
    std::array<wchar_t, Room> buffer = {};
    return SUCCEEDED(read(buffer.data(), int(Room))) ? QString::fromWCharArray(buffer.data()) : QString();
}

/// The shell does not take the form of a path that may be longer than 260 characters.
QString shellPath(const QString &file)
{
    return QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
}

ComPtr<IShellLinkW> newLink()
{
    return createComObject<IShellLinkW>(CLSID_ShellLink, IID_IShellLinkW);
}

ComPtr<IPersistFile> fileOf(const ComPtr<IShellLinkW> &link)
{
    return link ? queryInterface<IPersistFile>(*link, IID_IPersistFile) : nullptr;
}

/// Whether the link is good is what saving it says; a field that the shell refuses is left out.
void fill(IShellLinkW &target, const ShellLink &link)
{
    target.SetPath(wide(link.path));
    if (!link.arguments.isEmpty())
        target.SetArguments(wide(link.arguments));
    if (!link.workingDirectory.isEmpty())
        target.SetWorkingDirectory(wide(link.workingDirectory));
    if (!link.iconPath.isEmpty())
        target.SetIconLocation(wide(link.iconPath), link.iconIndex);
    if (!link.description.isEmpty())
        target.SetDescription(wide(link.description));
}

} // namespace

std::optional<ShellLink> readShellLink(const QString &file)
{
    const ComScope com;
    if (!com.isUsable())
        return std::nullopt;
    const ComPtr<IShellLinkW> source = newLink();
    const ComPtr<IPersistFile> sourceFile = fileOf(source);
    if (!sourceFile || FAILED(sourceFile->Load(wide(shellPath(file)), STGM_READ)))
        return std::nullopt;

    ShellLink link;
    link.path = textFrom<PathRoom>([&source](wchar_t *buffer, int room) {
        return source->GetPath(buffer, room, nullptr, SLGP_RAWPATH);
    });
    link.arguments = textFrom<TextRoom>(
        [&source](wchar_t *buffer, int room) { return source->GetArguments(buffer, room); });
    link.workingDirectory = textFrom<PathRoom>(
        [&source](wchar_t *buffer, int room) { return source->GetWorkingDirectory(buffer, room); });
    link.iconPath = textFrom<PathRoom>([&source, &link](wchar_t *buffer, int room) {
        return source->GetIconLocation(buffer, room, &link.iconIndex);
    });
    link.description = textFrom<TextRoom>(
        [&source](wchar_t *buffer, int room) { return source->GetDescription(buffer, room); });
    return link;
}

bool writeShellLink(const QString &file, const ShellLink &link)
{
    if (!QDir().mkpath(QFileInfo(file).path()))
        return false;
    const ComScope com;
    if (!com.isUsable())
        return false;
    const ComPtr<IShellLinkW> target = newLink();
    const ComPtr<IPersistFile> targetFile = fileOf(target);
    if (!targetFile)
        return false;
    fill(*target, link);
    return SUCCEEDED(targetFile->Save(wide(shellPath(file)), TRUE));
}

} // namespace Zandrove::Platform
