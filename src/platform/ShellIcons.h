#pragma once

#include <QImage>
#include <QString>

/// The icons that the shell knows, as pictures. A picture is null where there is none.
///
/// Elsewhere than on Windows a file's icon is the picture that the file holds, whatever its name.
namespace Zandrove::Platform {

/// An icon in the shell's two sizes, in pixels of this screen.
struct IconPair
{
    QImage largeImage;
    QImage smallImage;
};

/// The icon number `index`, from 0, of a program, a library or an icon file.
[[nodiscard]] IconPair extractIcon(const QString &file, int index = 0);

/// The large icon that the shell shows for `file`.
[[nodiscard]] QImage fileIcon(const QString &file);

/// The large icon that the shell shows for a file type, such as ".exe".
[[nodiscard]] QImage fileTypeIcon(const QString &suffix);

} // namespace Zandrove::Platform
