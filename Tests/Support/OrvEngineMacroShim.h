#pragma once

// Third-party headers come first, as the engine wraps them between THIRD_PARTY_INCLUDES_START/END.
#include "Core/Json/OrvRapidJson.h"

// Function-like macros and Windows names that the engine's build defines before our headers are
// seen. A core header that names anything like these fails to compile here before it fails in UBT.
#define check(Expr) ((void)(Expr))
#define verify(Expr) ((void)(Expr))
#define ensure(Expr) (!!(Expr))
#define checkf(Expr, ...) ((void)(Expr))
#undef TEXT // the engine replaces <windows.h>'s TEXT with its own
#define TEXT(Literal) L##Literal
// On a Windows build <windows.h> came first and these are its own definitions; elsewhere they stand in.
#ifndef GetObject
#define GetObject GetObjectW
#endif
#ifndef GetCurrentTime
#define GetCurrentTime() 0
#endif
#ifndef Yield
#define Yield() ((void)0)
#endif
#ifndef CreateWindow
#define CreateWindow CreateWindowW
#endif
#ifndef GetMessage
#define GetMessage GetMessageW
#endif
#ifndef SendMessage
#define SendMessage SendMessageW
#endif
#ifndef LoadImage
#define LoadImage LoadImageW
#endif
#ifndef DrawText
#define DrawText DrawTextW
#endif
