#pragma once

#include <QtGlobal>

/// Marks a service of the host. The importer's shared library leaves services undefined,
/// and the program that loads it supplies them: they must be visible in the program even
/// where it is built with hidden visibility, and the program must be linked so that it
/// exports its symbols (ENABLE_EXPORTS in CMake, -rdynamic elsewhere).
#define LABELPORT_HOST_SERVICE Q_DECL_EXPORT
