#pragma once

namespace migration {

/// What a JSON report says that it is, and the version that is written.
inline constexpr char kReportFormat[] = "labelport-report";
inline constexpr int kReportVersion = 1;

} // namespace migration
