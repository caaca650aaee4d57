#include "Unreal/OrvUnrealLog.h"

#include "Unreal/OrvUnrealConversions.h"

namespace OrvWebBridge
{
    DEFINE_LOG_CATEGORY(LogOrvMcp);
    DEFINE_LOG_CATEGORY(LogOrvMcpHandler);

// UE_LOG takes its category and verbosity as tokens, so each pair needs its own expansion.
#define ORV_UNREAL_LOG_AT(CategoryName)                                                                      \
    switch (Verbosity)                                                                                       \
    {                                                                                                        \
    case EOrvLogVerbosity::Error:                                                                            \
        UE_LOG(CategoryName, Error, TEXT("%s"), *Text);                                                      \
        break;                                                                                               \
    case EOrvLogVerbosity::Warning:                                                                          \
        UE_LOG(CategoryName, Warning, TEXT("%s"), *Text);                                                    \
        break;                                                                                               \
    case EOrvLogVerbosity::Display:                                                                          \
        UE_LOG(CategoryName, Display, TEXT("%s"), *Text);                                                    \
        break;                                                                                               \
    case EOrvLogVerbosity::Log:                                                                              \
        UE_LOG(CategoryName, Log, TEXT("%s"), *Text);                                                        \
        break;                                                                                               \
    case EOrvLogVerbosity::Verbose:                                                                          \
        UE_LOG(CategoryName, Verbose, TEXT("%s"), *Text);                                                    \
        break;                                                                                               \
    }

    void FOrvUnrealLog::Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message)
    {
        const FString Text = FOrvUnrealConversions::ToFString(Message);
        switch (Category)
        {
        case EOrvLogCategory::LogOrvMcp:
            ORV_UNREAL_LOG_AT(LogOrvMcp);
            break;
        case EOrvLogCategory::LogOrvMcpHandler:
            ORV_UNREAL_LOG_AT(LogOrvMcpHandler);
            break;
        case EOrvLogCategory::LogTemp:
            ORV_UNREAL_LOG_AT(LogTemp);
            break;
        }
    }

#undef ORV_UNREAL_LOG_AT
} // namespace OrvWebBridge
