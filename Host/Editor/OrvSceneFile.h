#pragma once

#include <string>

namespace OrvWebBridge
{
    class FOrvMemoryEditor;

    /** @brief Outcome of loading or saving a scene file; Error names the file, the place and the problem. */
    struct FOrvSceneFileResult
    {
        bool bOk = false;
        std::string Error; ///< e.g. "room.json: actors[2].location: expected an array of 3 numbers"
    };

    /** @brief The JSON scene file format of the host (see Docs/SceneFormat.md). */
    struct FOrvSceneFile
    {
        /** Loads a scene file into an empty editor; on failure the editor must be discarded. */
        static FOrvSceneFileResult Load(const std::string& FilePath, FOrvMemoryEditor& Editor);

        /** Loads scene JSON text; SourceName stands for the file in error messages. */
        static FOrvSceneFileResult LoadText(const std::string& Text, const std::string& SourceName,
                                            FOrvMemoryEditor& Editor);

        /** The editor's current project and level as scene JSON text. */
        static std::string SaveText(const FOrvMemoryEditor& Editor);

        /** Writes SaveText to a file (through a temporary file, so a failed write loses nothing). */
        static FOrvSceneFileResult Save(const FOrvMemoryEditor& Editor, const std::string& FilePath);
    };
} // namespace OrvWebBridge
