using System.Collections.Generic;
using System.IO;
using System.Linq;
using Microsoft.Extensions.Logging;
using UnrealBuildTool;

public class OrvessaWebBridge : ModuleRules
{
	public OrvessaWebBridge(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// The portable core under Private/Core is plain C++20 over the standard library and RapidJSON; it
		// compiles here as part of this module, next to the adapters under Private/Unreal that connect it
		// to the engine. Its includes are rooted at Private ("Core/Json/OrvJson.h"): UBT puts a module's own
		// Private folder on its include path already (bAddDefaultIncludePaths, on by default).
		CppStandard = CppStandardVersion.Cpp20;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Engine",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"UnrealEd",
			"Slate",
			"SlateCore",
			"InputCore",
			"ToolMenus",
			"Json",
			"HTTPServer",
			"WebBrowser",
			"Projects",
			"ApplicationCore",
			"AssetRegistry",
			"ImageWrapper",
			"DesktopPlatform",
			"ContentBrowser",
			"LevelEditor",
			// The catalogue account subsystem may be an editor subsystem looked up through GEditor.
			"EditorSubsystem",
			// The engine's copy of RapidJSON (1.1.0), which the core reads and writes JSON with.
			"RapidJSON",
		});

		// The maker's closed modules: the catalogue client and session (OrvCore) and the product tag that
		// imported meshes carry (OrvImport). Without them the plugin builds in its reduced mode: the glue
		// under Private/Unreal/Closed compiles to nothing, so no mesh counts as a catalogue product and
		// nothing reaches the catalogue service.
		bool bWithClosedModules = HasModule(Target, "OrvCore") && HasModule(Target, "OrvImport");
		if (bWithClosedModules)
		{
			PrivateDependencyModuleNames.AddRange(new string[] { "OrvCore", "OrvImport" });
		}
		else
		{
			Logger.LogInformation("OrvessaWebBridge: the maker's modules OrvCore and OrvImport were not found; building the reduced mode without them.");
		}
		PrivateDefinitions.Add("ORV_WITH_CLOSED_MODULES=" + (bWithClosedModules ? "1" : "0"));
	}

	// Whether the project's plugins or the engine's installed (Marketplace/Fab) plugins hold a module of
	// that name: its "<Name>.Build.cs" is what UBT itself finds a module by.
	private bool HasModule(ReadOnlyTargetRules Target, string ModuleName)
	{
		List<string> Roots = new List<string> { Path.Combine(EngineDirectory, "Plugins", "Marketplace") };
		if (Target.ProjectFile != null)
		{
			Roots.Add(Path.Combine(Target.ProjectFile.Directory.FullName, "Plugins"));
		}
		string RulesFile = ModuleName + ".Build.cs";
		return Roots.Any(Root => Directory.Exists(Root) &&
			Directory.EnumerateFiles(Root, RulesFile, SearchOption.AllDirectories).Any());
	}
}
