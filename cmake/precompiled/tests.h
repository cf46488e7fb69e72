// The same for test programs.

#include "widgets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
