#pragma once

// Third-party headers come first, as the engine wraps them between THIRD_PARTY_INCLUDES_START/END.
#include "Core/Json/OrvRapidJson.h"

// Function-like macros and Windows names that the engine's build defines before our headers are
// seen. A core header that names anything like these fails to compile here before it fails in UBT.
#define check(Expr) ((void)(Expr))
#define verify(Expr) ((void)(Expr))
#define ensure(Expr) (!!(Expr))
#define checkf(Expr, ...) ((void)(Expr))
#define TEXT(Literal) L##Literal
#define GetObject GetObjectW
#define GetCurrentTime() 0
#define Yield() ((void)0)
#define CreateWindow CreateWindowW
#define GetMessage GetMessageW
#define SendMessage SendMessageW
#define LoadImage LoadImageW
#define DrawText DrawTextW
