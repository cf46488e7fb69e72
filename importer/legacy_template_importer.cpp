#include "importer/legacy_template_importer.h"
