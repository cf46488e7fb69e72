#pragma once

namespace migration {

/// What a JSON report says that it is, and the version that is written.
inline constexpr char ReportFormat[] = "labelport-report";
inline constexpr int ReportVersion = 1;

} // namespace migration
