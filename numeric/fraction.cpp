#include "numeric/fraction.h"
