#include "core/common/License.h"

namespace Zandrove {

License &License::ofThisCopy()
{
    static License license;
    return license;
}

} // namespace Zandrove
