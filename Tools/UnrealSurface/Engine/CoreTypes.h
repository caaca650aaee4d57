#pragma once

// Engine: Runtime/Core/Public/CoreTypes.h (module Core): the platform types and the assertion macros.

#include "HAL/Platform.h"
#include "Misc/AssertionMacros.h"
