#include "core/common/Languages.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

std::span<const Language> languages()
{
    static constexpr std::array All = {
        Language{"en"_L1, u"🇺🇸  English"},   Language{"zh_TW"_L1, u"🇹🇼  繁體中文"},
        Language{"fr"_L1, u"🇫🇷  Français"},  Language{"de"_L1, u"🇩🇪  Deutsch"},
        Language{"ja"_L1, u"🇯🇵  日本語"},    Language{"es"_L1, u"🇪🇸  Español"},
        Language{"ko"_L1, u"🇰🇷  한국어"},    Language{"nl"_L1, u"🇳🇱  Nederlands"},
        Language{"pt"_L1, u"🇵🇹  Português"}, Language{"it"_L1, u"🇮🇹  Italiano"},
    };
    return All;
}

const Language *languageForLetters(QStringView twoLetters)
{
    const auto all = languages();
    const auto found = std::find_if(all.begin(), all.end(), [twoLetters](const Language &language) {
        return language.code.first(2) == twoLetters;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace Zandrove
