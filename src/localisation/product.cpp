#include "localisation/product.h"

char const* const product_version = PRODUCT_VERSION;
