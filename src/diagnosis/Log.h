#pragma once

#include <QDebug>
#include <QLoggingCategory>

namespace Zandrove {

/// The log lines of this layer. While it is off a line costs nothing, its arguments included.
inline Q_LOGGING_CATEGORY(logDiagnosis, "zandrove.diagnosis")

} // namespace Zandrove
