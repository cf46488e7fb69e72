#pragma once

#include <QtGlobal>

/// Marks a service of the host. The importer's shared library does not define the services; the
/// program that loads it does. They must be visible in the program, even if it is built with hidden
/// visibility, and the program must export its symbols (ENABLE_EXPORTS in CMake, -rdynamic
/// elsewhere).
#define LABELPORT_HOST_SERVICE Q_DECL_EXPORT
