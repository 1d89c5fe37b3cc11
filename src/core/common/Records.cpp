#include "core/common/Records.h"

#include <QDebugStateSaver>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

QString debugSpeed(double bytesPerSecond)
{
    static constexpr std::array<QLatin1StringView, 5> Units = {"B"_L1, "KB"_L1, "MB"_L1, "GB"_L1, "TB"_L1};
    double value = std::trunc(bytesPerSecond) + 0.0; // a negative zero would print its sign
    std::size_t unit = 0;
    while (value >= 1024.0 && unit + 1 < Units.size()) {
        value /= 1024.0;
        ++unit;
    }
    return QString::number(value, 'f', 2) + u' ' + Units.at(unit) + "/s"_L1;
}

} // namespace

const char *roleName(int role)
{
    return role == OldPC ? "OldPC" : "NewPC";
}

QString TransferProgress::remainingTimeString() const
{
    if (remainingSeconds <= 0)
        return u"Calculating..."_s;

    const int hours = remainingSeconds / 3600;
    const int minutes = remainingSeconds % 3600 / 60;
    const int seconds = remainingSeconds % 60;
    if (hours > 0)
        return u"%1h %2m"_s.arg(QString::number(hours), QString::number(minutes));
    if (minutes > 0)
        return u"%1m %2s"_s.arg(QString::number(minutes), QString::number(seconds));
    return u"%1s"_s.arg(seconds);
}

QDebug operator<<(QDebug debug, const PCInfo &pc)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().quote() << "PCInfo("
                            << "id:" << pc.id << ", "
                            << "name:" << pc.name << ", "
                            << "ip:" << pc.ip << ":" << pc.port << ", "
                            << "online:" << pc.online << ")";
    return debug;
}

QDebug operator<<(QDebug debug, const QList<PCInfo> &pcs)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "(";
    for (qsizetype i = 0; i < pcs.size(); ++i) {
        if (i > 0)
            debug << ", ";
        debug << pcs.at(i);
    }
    debug << ")";
    return debug;
}

QDebug operator<<(QDebug debug, const TransferProgress &progress)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "TransferProgress("
                              << "stage:" << progress.stage << ", "
                              << "overall:" << progress.overallPercent << "%, "
                              << "speed:" << debugSpeed(progress.bytesPerSecond) << ", "
                              << "remaining:" << progress.remainingTimeString() << ")";
    return debug;
}

} // namespace Zandrove
