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
            assign(name, value);
    }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

    void set(const QByteArray &name, const std::optional<QByteArray> &value)
    {
        const bool wasSet = qEnvironmentVariableIsSet(name.constData());
        m_before.try_emplace(name, wasSet ? std::optional(qgetenv(name.constData())) : std::nullopt);
        assign(name, value);
    }
    void unset(const QByteArray &name) { set(name, std::nullopt); }

private:
    static void assign(const QByteArray &name, const std::optional<QByteArray> &value)
    {
        value ? qputenv(name.constData(), *value) : qunsetenv(name.constData());
    }

    std::map<QByteArray, std::optional<QByteArray>> m_before;
};

} // namespace Zandrove
