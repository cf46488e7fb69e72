#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "host/kest_types.h"
#include <gtest/gtest.h>
TEST(Contract, Compiles) { SUCCEED(); }
