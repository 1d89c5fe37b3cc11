#pragma once

#include <QString>
#include <QStringList>

#include <memory>

/// The registry: read by key path and view, and single values written.
///
/// Elsewhere than on Windows it is one .reg file, in the text form of `reg export`, that the environment
/// variable ZANDROVE_REGISTRY names; without that variable every key is missing and nothing can be written.
/// What another program changes in that file is seen by the next key that is opened.
namespace Zandrove::Platform {

enum class RegistryView {
    Native, ///< as this program sees it
    View64, ///< as a 64-bit program sees it
    View32, ///< as a 32-bit program sees it: below HKEY_LOCAL_MACHINE\SOFTWARE, what WOW6432Node holds
};

/// One key, which need not exist. A missing key has no values and no subkeys, and so has one that this user
/// may not read.
///
/// A path begins with a root by its long or short name (HKEY_CURRENT_USER, HKCU), and only backslashes
/// separate its parts. Names of keys and values ignore case. The value without a name is called ".". An
/// object belongs to one thread; different objects may be used at the same time.
class RegistryKey final
{
public:
    explicit RegistryKey(const QString &path, RegistryView view = RegistryView::Native);
    ~RegistryKey();
    RegistryKey(RegistryKey &&) noexcept;
    RegistryKey &operator=(RegistryKey &&) noexcept;

    [[nodiscard]] bool exists() const;

    /// The names of the keys and of the values directly below this one, sorted by code point.
    [[nodiscard]] QStringList subkeyNames() const;
    [[nodiscard]] QStringList valueNames() const;

    /// The subkey `name` as this view shows it.
    [[nodiscard]] RegistryKey subkey(const QString &name) const;

    [[nodiscard]] bool hasValue(const QString &name) const;

    /// A value as text: numbers in decimal, the items of a list one a line, environment variables left as
    /// they stand. `fallback` where the value is missing.
    [[nodiscard]] QString text(const QString &name, const QString &fallback = QString()) const;

    /// A value as a number; texts are read as decimal. `fallback` where the value is missing or no number.
    [[nodiscard]] qint64 number(const QString &name, qint64 fallback = 0) const;

    /// The items of a list value; a text is a list of one. Empty where the value is missing.
    [[nodiscard]] QStringList texts(const QString &name) const;

    /// Writes a text value, and makes the key where it is missing. A value that expands environment variables
    /// stays one that does. False where it could not be written.
    [[nodiscard]] bool setText(const QString &name, const QString &text);

private:
    class Source;
    std::unique_ptr<Source> m_source;
};

} // namespace Zandrove::Platform
