#pragma once

#include "cli/import_options.h"
#include "tests/cli/program_fixture.h"

#include <gtest/gtest.h>

/// The options of accepted arguments of `labelport import`.
inline cli::ImportOptions accepted(const char* line)
{
    const auto result = cli::parseImportArguments(words(line));
    if (const auto* options = std::get_if<cli::ImportOptions>(&result)) {
        return *options;
    }
    ADD_FAILURE() << "refused: " << line;
    return {};
}

/// The message about wrong arguments; empty if they are accepted.
inline QString refusal(const char* line)
{
    testing::internal::CaptureStderr();
    const auto result = cli::parseImportArguments(words(line));
    const QString printed = QString::fromStdString(testing::internal::GetCapturedStderr());
    const int* status = std::get_if<int>(&result);
    return status != nullptr && *status == 2 ? printed.section(u'\n', 0, 0).mid(2) : QString();
}
