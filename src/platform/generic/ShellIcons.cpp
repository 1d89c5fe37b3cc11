#include "platform/ShellIcons.h"

#include <QImageReader>

namespace Zandrove::Platform {

IconPair extractIcon(const QString &file, int index)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    if (index > 0 && !reader.jumpToImage(index))
        return {};
    const QImage image = reader.read();
    return {image, image};
}

QImage fileIcon(const QString &file)
{
    return extractIcon(file).largeImage;
}

QImage fileTypeIcon(const QString &)
{
    return {};
}

} // namespace Zandrove::Platform
