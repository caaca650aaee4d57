#include "Tests/Support/OrvRecordingLog.h"

namespace OrvWebBridge
{
    void FOrvRecordingLog::Log(EOrvLogCategory Category, EOrvLogVerbosity Verbosity, std::string_view Message)
    {
        Lines.push_back({Category, Verbosity, std::string(Message)});
    }

    bool FOrvRecordingLog::Contains(EOrvLogVerbosity Verbosity, std::string_view Message) const
    {
        for (const FLine& Line : Lines)
        {
            if (Line.Verbosity == Verbosity && Line.Message == Message)
            {
                return true;
            }
        }
        return false;
    }

    int FOrvRecordingLog::Count(std::string_view Message) const
    {
        int Found = 0;
        for (const FLine& Line : Lines)
        {
            Found += Line.Message == Message ? 1 : 0;
        }
        return Found;
    }
} // namespace OrvWebBridge
