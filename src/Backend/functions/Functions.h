// All function classes.
#pragma once

#include "Backend/functions/ActionFunctions.h"
#include "Backend/functions/ControlFunctions.h"
#include "Backend/functions/LoadPresetFunctions.h"
#include "Backend/functions/MidiFunctions.h"
#include "Backend/functions/MoveWindowFunction.h"
#include "Backend/functions/NoFunction.h"
#include "Backend/functions/OnOffToggleFunctions.h"
#include "Backend/functions/SelectFunctions.h"
