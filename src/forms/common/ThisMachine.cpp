#include "forms/common/ThisMachine.h"

#include <QSysInfo>

namespace vypx {

bool IsThisMachine(const QString& host)
{
    return host.isEmpty() || host.compare("localhost", Qt::CaseInsensitive) == 0
        || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

} // namespace vypx
