#include "Host/Runtime/OrvServeConsole.h"

#include "Core/Common/OrvStrings.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFile.h"

#include <algorithm>
#include <cctype>

namespace OrvWebBridge
{
    FOrvServeConsole::FOrvServeConsole(FOrvMemoryEditor& InEditor, std::string InSceneFile,
                                       std::function<void()> InOnQuit)
        : Editor(InEditor), SceneFile(std::move(InSceneFile)), OnQuit(std::move(InOnQuit))
    {
        AddCommand("help", "help", "List the commands.", [this](const auto&) { return Help(); });
        AddCommand("list", "list", "List the actors of the level.", [this](const auto&) { return List(); });
        AddCommand("undo", "undo", "Undo the last change (an AI tool's spawn, move or delete).",
                   [this](const auto&) { return Undo(); });
        AddCommand("redo", "redo", "Redo the last undone change.", [this](const auto&) { return Redo(); });
        AddCommand("history", "history", "Show the undo and redo history.",
                   [this](const auto&) { return History(); });
        AddCommand("save", "save [FILE]",
                   "Save the level to its scene file, or to FILE (which then becomes it).",
                   [this](const auto& Args) { return Save(Args); });
        AddCommand("quit", "quit", "Stop the server and leave (asks again when there are unsaved changes).",
                   [this](const auto&) { return Quit(); });
    }

    void FOrvServeConsole::AddCommand(const std::string& Name, std::string Usage, std::string Help,
                                      FOrvCommandHandler Handler)
    {
        if (!Commands.contains(Name))
        {
            Order.push_back(Name);
        }
        Commands[Name] = FCommand{std::move(Usage), std::move(Help), std::move(Handler)};
    }

    std::vector<std::string> FOrvServeConsole::SplitWords(std::string_view Line)
    {
        std::vector<std::string> Words;
        std::string Word;
        bool bInWord = false;
        bool bQuoted = false;
        for (const char Char : Line)
        {
            if (Char == '"')
            {
                bQuoted = !bQuoted;
                bInWord = true;
            }
            else if (!bQuoted && std::isspace(static_cast<unsigned char>(Char)))
            {
                if (bInWord)
                {
                    Words.push_back(std::move(Word));
                    Word.clear();
                    bInWord = false;
                }
            }
            else
            {
                Word += Char;
                bInWord = true;
            }
        }
        if (bInWord)
        {
            Words.push_back(std::move(Word));
        }
        return Words;
    }

    std::string FOrvServeConsole::Execute(std::string_view Line)
    {
        std::vector<std::string> Words = SplitWords(Line);
        if (Words.empty())
        {
            return {};
        }
        const std::string Name = FOrvStrings::ToLower(Words.front());
        const auto Found = Commands.find(Name);
        if (Found == Commands.end())
        {
            return "Unknown command \"" + Words.front() + "\"; type help for the list.\n";
        }
        Words.erase(Words.begin());
        // Copied: a command may replace commands (and so its own handler) while it runs.
        const FOrvCommandHandler Handler = Found->second.Handler;
        std::string Output = Handler(Words);
        if (!Output.empty() && Output.back() != '\n')
        {
            Output += '\n';
        }
        return Output;
    }

    std::string FOrvServeConsole::Help() const
    {
        std::size_t Width = 0;
        for (const std::string& Name : Order)
        {
            Width = std::max(Width, Commands.at(Name).Usage.size());
        }
        std::string Text = "Commands:\n";
        for (const std::string& Name : Order)
        {
            const FCommand& Command = Commands.at(Name);
            Text += "  " + Command.Usage + std::string(Width - Command.Usage.size() + 2, ' ') + Command.Help +
                    "\n";
        }
        return Text;
    }

    std::string FOrvServeConsole::Undo()
    {
        const std::vector<FOrvMemoryHistoryEntry> History = Editor.GetUndoHistory();
        if (History.empty() || !Editor.Undo())
        {
            return "Nothing to undo.";
        }
        return "Undone: " + History.back().Description;
    }

    std::string FOrvServeConsole::Redo()
    {
        const std::vector<FOrvMemoryHistoryEntry> Pending = Editor.GetRedoHistory();
        if (Pending.empty() || !Editor.Redo())
        {
            return "Nothing to redo.";
        }
        return "Redone: " + Pending.back().Description;
    }

    std::string FOrvServeConsole::History() const
    {
        const std::vector<FOrvMemoryHistoryEntry> Done = Editor.GetUndoHistory();
        const std::vector<FOrvMemoryHistoryEntry> Undone = Editor.GetRedoHistory();
        if (Done.empty() && Undone.empty())
        {
            return "No changes yet.";
        }
        std::string Text;
        int Number = 0;
        for (const FOrvMemoryHistoryEntry& Entry : Done)
        {
            Text += FOrvStrings::Printf("  %d. %s\n", ++Number, Entry.Description.c_str());
        }
        // The next redo is the last entry; show them in the order they would be redone.
        for (auto Entry = Undone.rbegin(); Entry != Undone.rend(); ++Entry)
        {
            Text += FOrvStrings::Printf("  %d. %s (undone)\n", ++Number, Entry->Description.c_str());
        }
        return Text;
    }

    std::string FOrvServeConsole::List() const
    {
        const std::vector<const FOrvMemoryActor*> Actors = Editor.GetLevelActors();
        std::string Text = FOrvStrings::Printf("%zu actor%s in %s:\n", Actors.size(),
                                               Actors.size() == 1 ? "" : "s", Editor.GetMapName().c_str());
        for (const FOrvMemoryActor* Actor : Actors)
        {
            std::string Mesh = "-";
            if (!Actor->StaticMeshComponents.empty() && Actor->StaticMeshComponents.front())
            {
                Mesh = Editor.Meshes().GetMeshName(Actor->StaticMeshComponents.front());
            }
            const FOrvVector& At = Actor->Transform.Location;
            Text += FOrvStrings::Printf("  %-22s %-28s %-24s at (%.1f, %.1f, %.1f) yaw %.1f%s\n",
                                        Actor->Name.c_str(), Actor->Label.c_str(), Mesh.c_str(), At.X, At.Y,
                                        At.Z, Actor->Transform.Rotation.Yaw,
                                        Actor->bTemporarilyHidden ? " (hidden)" : "");
        }
        return Text;
    }

    std::string FOrvServeConsole::Save(const std::vector<std::string>& Args)
    {
        if (Args.size() > 1)
        {
            return "Usage: save [FILE]";
        }
        const std::string Target = Args.empty() ? SceneFile : Args.front();
        if (Target.empty())
        {
            return "The demo scene has no file yet; name one: save FILE";
        }
        const FOrvSceneFileResult Result = FOrvSceneFile::Save(Editor, Target);
        if (!Result.bOk)
        {
            return "Not saved: " + Result.Error;
        }
        Editor.MarkClean();
        SceneFile = Target;
        bQuitWarned = false;
        return "Saved " + Target + ".";
    }

    std::string FOrvServeConsole::Quit()
    {
        if (Editor.IsDirty() && !bQuitWarned)
        {
            bQuitWarned = true;
            return "The level has unsaved changes. Type quit again to leave without saving, or save first.";
        }
        if (OnQuit)
        {
            OnQuit();
        }
        return "Bye.";
    }
} // namespace OrvWebBridge
