#include "core/common/AppConfig.h"

using namespace Qt::StringLiterals;

namespace Zandrove {

AppConfig::AppConfig()
    : m_settings(u"Corvane"_s, appName())
{
}

AppConfig &AppConfig::instance()
{
    static AppConfig config;
    return config;
}

QString AppConfig::appName()
{
    return u"Zandrove"_s;
}

QString AppConfig::appVersion()
{
    return QStringLiteral(ZANDROVE_VERSION);
}

QString AppConfig::userOrganisation()
{
    return u"Ostrelin"_s;
}

} // namespace Zandrove
