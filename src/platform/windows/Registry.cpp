#include "platform/Registry.h"

#include "platform/RegistryPath.h"
#include "platform/windows/NativePath.h"

#include <QSettings>
#include <QVariant>

#include <qt_windows.h>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

struct KeyCloser
{
    void operator()(HKEY key) const { RegCloseKey(key); }
};

using OpenKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

HKEY handleOfRoot(const QString &name)
{
    if (name == "HKEY_LOCAL_MACHINE"_L1)
        return HKEY_LOCAL_MACHINE;
    if (name == "HKEY_CURRENT_USER"_L1)
        return HKEY_CURRENT_USER;
    if (name == "HKEY_CLASSES_ROOT"_L1)
        return HKEY_CLASSES_ROOT;
    return name == "HKEY_USERS"_L1 ? HKEY_USERS : HKEY_CURRENT_CONFIG;
}

REGSAM accessOf(RegistryView view)
{
    switch (view) {
    case RegistryView::View32:
        return KEY_WOW64_32KEY;
    case RegistryView::View64:
        return KEY_WOW64_64KEY;
    case RegistryView::Native:
        break;
    }
    return 0;
}

QSettings::Format formatOf(RegistryView view)
{
    switch (view) {
    case RegistryView::View32:
        return QSettings::Registry32Format;
    case RegistryView::View64:
        return QSettings::Registry64Format;
    case RegistryView::Native:
        break;
    }
    return QSettings::NativeFormat;
}

/// QSettings uses the slash as its separator, so it shows and takes names with both kinds of slash exchanged.
/// It drops empty parts, and with them finds no value whose name begins or ends with a backslash.
QString exchanged(QString name)
{
    for (QChar &character : name) {
        if (character == u'/')
            character = u'\\';
        else if (character == u'\\')
            character = u'/';
    }
    return name;
}

QStringList exchanged(QStringList names)
{
    for (QString &name : names)
        name = exchanged(name);
    names.sort();
    return names;
}

QString asText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Int)
        return QString::number(value.toUInt());
    return value.canConvert<QStringList>() && value.typeId() != QMetaType::QString
               ? value.toStringList().join(u'\n')
               : value.toString();
}

} // namespace

class RegistryKey::Source
{
public:
    Source(QString keyPath, RegistryView keyView)
        : path(std::move(keyPath))
        , view(keyView)
        , parts(splitRegistryPath(path))
    {
        read();
    }

    /// QSettings would make the key that it is to read where it is missing, so it is not asked then.
    void read()
    {
        settings.reset();
        if (!exists())
            return;
        const QString whole = parts->below.isEmpty() ? parts->root : parts->root + u'\\' + parts->below;
        settings = std::make_unique<QSettings>(whole, formatOf(view));
    }

    [[nodiscard]] bool exists() const
    {
        HKEY key = nullptr;
        if (!parts || RegOpenKeyExW(handleOfRoot(parts->root), wide(parts->below), 0,
                                    KEY_READ | accessOf(view), &key) != ERROR_SUCCESS)
            return false;
        OpenKey(key).reset();
        return true;
    }

    [[nodiscard]] QVariant value(const QString &name) const
    {
        return settings ? settings->value(exchanged(name)) : QVariant();
    }

    QString path;
    RegistryView view;
    std::optional<RegistryPath> parts;
    std::unique_ptr<QSettings> settings; ///< null while the key can't be read
};

RegistryKey::RegistryKey(const QString &path, RegistryView view)
    : m_source(std::make_unique<Source>(path, view))
{
}

RegistryKey::~RegistryKey() = default;
RegistryKey::RegistryKey(RegistryKey &&) noexcept = default;
RegistryKey &RegistryKey::operator=(RegistryKey &&) noexcept = default;

bool RegistryKey::exists() const
{
    return m_source->exists();
}

QStringList RegistryKey::subkeyNames() const
{
    return m_source->settings ? exchanged(m_source->settings->childGroups()) : QStringList();
}

QStringList RegistryKey::valueNames() const
{
    return m_source->settings ? exchanged(m_source->settings->childKeys()) : QStringList();
}

RegistryKey RegistryKey::subkey(const QString &name) const
{
    return RegistryKey(m_source->path + u'\\' + name, m_source->view);
}

bool RegistryKey::hasValue(const QString &name) const
{
    return m_source->settings && m_source->settings->contains(exchanged(name));
}

QString RegistryKey::text(const QString &name, const QString &fallback) const
{
    const QVariant value = m_source->value(name);
    return value.isValid() ? asText(value) : fallback;
}

qint64 RegistryKey::number(const QString &name, qint64 fallback) const
{
    bool isNumber = false;
    const qint64 number = text(name).toLongLong(&isNumber);
    return isNumber ? number : fallback;
}

QStringList RegistryKey::texts(const QString &name) const
{
    const QVariant value = m_source->value(name);
    if (!value.isValid())
        return {};
    return value.canConvert<QStringList>() ? value.toStringList() : QStringList(asText(value));
}

/// QSettings would double an "@" at the beginning, and make an expandable text one that is not expanded.
bool RegistryKey::setText(const QString &name, const QString &text)
{
    const auto &parts = m_source->parts;
    HKEY opened = nullptr;
    if (!parts || RegCreateKeyExW(handleOfRoot(parts->root), wide(parts->below), 0, nullptr, 0,
                                  KEY_QUERY_VALUE | KEY_SET_VALUE | accessOf(m_source->view), nullptr,
                                  &opened, nullptr) != ERROR_SUCCESS)
        return false;
    const OpenKey key(opened);
    const QString realName = name == u"." ? QString() : name;
    DWORD type = REG_SZ;
    const bool expands =
        RegQueryValueExW(key.get(), wide(realName), nullptr, &type, nullptr, nullptr) == ERROR_SUCCESS &&
        type == REG_EXPAND_SZ;
    const auto bytes = DWORD((text.size() + 1) * qsizetype(sizeof(wchar_t)));
    const bool written = RegSetValueExW(key.get(), wide(realName), 0, expands ? REG_EXPAND_SZ : REG_SZ,
                                        reinterpret_cast<const BYTE *>(wide(text)), bytes) == ERROR_SUCCESS;
    m_source->read();
    return written;
}

} // namespace Zandrove::Platform
