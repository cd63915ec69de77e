#include "core/PhotometricRecord.h"
