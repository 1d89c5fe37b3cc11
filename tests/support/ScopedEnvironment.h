#pragma once

#include <QByteArray>

#include <map>
#include <optional>

namespace Zandrove {

/// Changes environment variables of this process, and gives each its old value back at the end.
class ScopedEnvironment final
{
public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment()
    {
        for (const auto &[name, value] : m_before)
            value ? qputenv(name.constData(), *value) : qunsetenv(name.constData());
    }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

    void set(const QByteArray &name, const QByteArray &value)
    {
        keep(name);
        qputenv(name.constData(), value);
    }

    void unset(const QByteArray &name)
    {
        keep(name);
        qunsetenv(name.constData());
    }

private:
    void keep(const QByteArray &name)
    {
        const bool wasSet = qEnvironmentVariableIsSet(name.constData());
        m_before.try_emplace(name, wasSet ? std::optional(qgetenv(name.constData())) : std::nullopt);
    }

    std::map<QByteArray, std::optional<QByteArray>> m_before;
};

} // namespace Zandrove
