#include "generation/engines.h"
