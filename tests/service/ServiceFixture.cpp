#include "tests/service/ServiceFixture.h"

#include "common/DarkTheme.h"
#include "service/SessionValues.h"

namespace test
{

ServiceFixture::ServiceFixture()
{
    g_darkMode = 0;
    ApiKey.clear();
    UserToken.clear();
    SearchTerm.clear();
    CurrentPageNumber = "1";
}

} // namespace test
