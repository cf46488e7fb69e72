#include "supply/table_model.h"
