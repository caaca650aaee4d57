#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    class FOrvMemoryEditor;

    /**
     * @brief The serve command's console: one line in, the text to print out. Knows the editor commands
     * (undo, redo, history, list, save, quit); other parts add theirs (the outliner's) with AddCommand.
     * No I/O of its own, so it runs the same under a terminal, a pipe or a test.
     */
    class FOrvServeConsole
    {
    public:
        /** Runs a command with its arguments (the words after the name); returns what to print. */
        using FOrvCommandHandler = std::function<std::string(const std::vector<std::string>& Args)>;

        /** SceneFile: where plain "save" writes; empty for the demo scene, which needs "save FILE". */
        FOrvServeConsole(FOrvMemoryEditor& InEditor, std::string InSceneFile, std::function<void()> InOnQuit);

        /** Adds (or replaces) a command; Usage like "select PRODUCT", Help one short sentence. */
        void AddCommand(const std::string& Name, std::string Usage, std::string Help,
                        FOrvCommandHandler Handler);

        /** Runs one line; the text ends with a line end unless it is empty (blank line). */
        std::string Execute(std::string_view Line);

        /** The file plain "save" writes to; empty when there is none yet. */
        const std::string& GetSceneFile() const { return SceneFile; }

        /** Splits a line into words; double quotes group words with blanks ("Dining Chairs"). */
        static std::vector<std::string> SplitWords(std::string_view Line);

    private:
        struct FCommand
        {
            std::string Usage;
            std::string Help;
            FOrvCommandHandler Handler;
        };

        std::string Help() const;
        std::string Undo();
        std::string Redo();
        std::string History() const;
        std::string List() const;
        std::string Save(const std::vector<std::string>& Args);
        std::string Quit();

        FOrvMemoryEditor& Editor;
        std::string SceneFile;
        std::function<void()> OnQuit;
        std::map<std::string, FCommand> Commands;
        std::vector<std::string> Order; ///< help lists commands in the order they were added
        bool bQuitWarned = false;
    };
} // namespace OrvWebBridge
