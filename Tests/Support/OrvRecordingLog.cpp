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

    std::vector<std::string> FOrvRecordingLog::Transcript(std::size_t First) const
    {
        std::vector<std::string> Found;
        for (std::size_t Index = First; Index < Lines.size(); ++Index)
        {
            Found.push_back(std::string(OrvLogVerbosityName(Lines[Index].Verbosity)) + ": " +
                            Lines[Index].Message);
        }
        return Found;
    }

    std::vector<std::string> FOrvRecordingLog::Problems(std::size_t First) const
    {
        std::vector<std::string> Found;
        for (std::string& Line : Transcript(First))
        {
            if (Line.starts_with("Warning: ") || Line.starts_with("Error: "))
            {
                Found.push_back(std::move(Line));
            }
        }
        return Found;
    }
} // namespace OrvWebBridge
