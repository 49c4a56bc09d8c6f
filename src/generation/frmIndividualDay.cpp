#include "generation/frmIndividualDay.h"
