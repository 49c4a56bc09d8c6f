#include "generation/frmWholeCalendar.h"
