#include "service/SessionValues.h"

QString ApiKey;
QString UserToken;
QString SearchTerm;
QString CurrentPageNumber = QLatin1String("1");
