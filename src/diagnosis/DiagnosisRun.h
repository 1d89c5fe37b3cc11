#pragma once

#include "diagnosis/Diagnosis.h"

#include <QList>

#include <functional>

namespace Zandrove {

/// Runs all tests of a diagnosis on the calling thread, which blocks for as long as they take; its
/// interruption ends them early. `tell` gets the findings as they are made.
void runDiagnosis(const DiagnosisOptions &options, const std::function<void(const QList<Finding> &)> &tell);

} // namespace Zandrove
