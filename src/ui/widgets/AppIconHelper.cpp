#include "ui/widgets/AppIconHelper.h"

#include "platform/ShellIcons.h"
#include "ui/Log.h"

#include <QFileInfo>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace Zandrove::AppIconHelper {

namespace {

constexpr QSize ShownSize(32, 32);

/// Adds `image` to `icon` unless it is null.
void addImage(QIcon &icon, const QImage &image)
{
    if (!image.isNull())
        icon.addPixmap(QPixmap::fromImage(image), QIcon::Normal, QIcon::Off);
}

/// The picture in a file, null where there is none. An icon alone would not be null for any file name.
QIcon loadPicture(const QString &path)
{
    const QIcon icon(path);
    return icon.pixmap(ShownSize).isNull() ? QIcon() : icon;
}

QIcon findDefaultIcon()
{
    for (const QString &resource :
         {u":/icons/app_default.png"_s, u":/icons/application.png"_s, u":/icons/app.png"_s,
          u":/images/app_default.png"_s, u":/images/application.png"_s}) {
        const QIcon icon = loadPicture(resource);
        if (!icon.isNull())
            return icon;
    }
    QIcon icon;
    addImage(icon, Platform::fileTypeIcon(u".exe"_s));
    if (icon.isNull()) {
        QPixmap plain(48, 48);
        plain.fill(QColor(100, 149, 237));
        icon.addPixmap(plain);
    }
    return icon;
}

} // namespace

QIcon iconForPath(const QString &path)
{
    if (path.isEmpty())
        return defaultAppIcon();
    const QFileInfo file(path);
    if (!file.exists()) {
        qCDebug(logUi) << "[AppIconHelper] Icon file not found:" << path;
        return defaultAppIcon();
    }
    static const QStringList Pictures = {u"ico"_s, u"png"_s, u"jpg"_s, u"jpeg"_s, u"bmp"_s};
    if (!Pictures.contains(file.suffix().toLower()))
        return iconFromExecutable(path);
    const QIcon icon = loadPicture(path);
    return icon.isNull() ? defaultAppIcon() : icon;
}

QIcon iconFromExecutable(const QString &path)
{
    QIcon icon;
    if (QFileInfo::exists(path)) {
        const Platform::IconPair pair = Platform::extractIcon(path);
        if (!pair.largeImage.isNull()) {
            addImage(icon, pair.largeImage);
            addImage(icon, pair.smallImage);
            return icon;
        }
    }
    addImage(icon, Platform::fileIcon(path));
    return icon.isNull() ? defaultAppIcon() : icon;
}

QIcon defaultAppIcon()
{
    static const QIcon Icon = findDefaultIcon();
    return Icon;
}

} // namespace Zandrove::AppIconHelper
