#include "platform/ShellIcons.h"

#include "platform/windows/ComPtr.h"
#include "platform/windows/NativePath.h"

#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

#include <shellapi.h>

#include <memory>
#include <optional>
#include <type_traits>

namespace Zandrove::Platform {

namespace {

struct IconDestroyer
{
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDestroyer>;

struct BitmapDeleter
{
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter>;

struct DeviceDeleter
{
    void operator()(HDC device) const { DeleteDC(device); }
};
using Device = std::unique_ptr<std::remove_pointer_t<HDC>, DeviceDeleter>;

std::optional<QSize> sizeOf(HBITMAP bitmap)
{
    BITMAP info = {};
    if (GetObjectW(bitmap, sizeof info, &info) == 0)
        return std::nullopt;
    return QSize(info.bmWidth, info.bmHeight);
}

/// Reads a bitmap into `image` from its top line on. False where that fails.
bool readPixels(HBITMAP bitmap, QImage &image)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = image.width();
    info.bmiHeader.biHeight = -image.height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    const Device device(CreateCompatibleDC(nullptr));
    const auto lines = UINT(image.height());
    return device &&
           GetDIBits(device.get(), bitmap, 0, lines, image.bits(), &info, DIB_RGB_COLORS) == image.height();
}

bool hasOpacity(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) != 0)
                return true;
        }
    }
    return false;
}

/// Makes every pixel solid for which the mask is black.
void applyMask(QImage &image, const QImage &mask)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const auto *const maskLine = reinterpret_cast<const QRgb *>(mask.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = (maskLine[x] & 0xffffff) == 0 ? line[x] | 0xff000000 : 0;
    }
}

/// The picture of an icon that has colours. Pictures from before transparency had levels carry
/// it in the mask alone.
QImage colourImage(HBITMAP colour, HBITMAP maskBitmap, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    if (!readPixels(colour, image))
        return {};
    QImage mask(size, QImage::Format_RGB32);
    if (!hasOpacity(image) && readPixels(maskBitmap, mask))
        applyMask(image, mask);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// An icon of a mask alone, which means black, white and inverted, stays transparent.
QImage imageOf(HICON icon)
{
    ICONINFO info = {};
    if (icon == nullptr || GetIconInfo(icon, &info) == 0)
        return {};
    const Bitmap colour(info.hbmColor);
    const Bitmap mask(info.hbmMask);
    const std::optional<QSize> size = sizeOf(colour ? colour.get() : mask.get());
    if (!size || size->isEmpty())
        return {};
    if (colour)
        return colourImage(colour.get(), mask.get(), *size);
    QImage image(size->width(), size->height() / 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage shellIcon(const QString &path, DWORD attributes, UINT flags)
{
    const ComScope com;
    SHFILEINFOW info = {};
    if (SHGetFileInfoW(wide(path), attributes, &info, sizeof info, SHGFI_ICON | flags) == 0)
        return {};
    return imageOf(Icon(info.hIcon).get());
}

} // namespace

IconPair extractIcon(const QString &file, int index)
{
    HICON largeIcon = nullptr;
    HICON smallIcon = nullptr;
    const QString native = QDir::toNativeSeparators(file);
    const UINT count = ExtractIconExW(wide(native), index, &largeIcon, &smallIcon, 1);
    const Icon largeOwner(largeIcon);
    const Icon smallOwner(smallIcon);
    if (count == 0 || count == UINT_MAX)
        return {};
    return {imageOf(largeIcon), imageOf(smallIcon)};
}

QImage fileIcon(const QString &file)
{
    return shellIcon(QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()), 0, 0);
}

QImage fileTypeIcon(const QString &suffix)
{
    return shellIcon(suffix, FILE_ATTRIBUTE_NORMAL, SHGFI_USEFILEATTRIBUTES);
}

} // namespace Zandrove::Platform
