// The named and the default styles: each starts as a copy of its parent.

#include "opendocument/open_office_reader.h"

#include "host/services/common_lists.h"
#include "limits/xml/element_tree.h"

using namespace opendocument;
using namespace Qt::StringLiterals;


