using System.IO;
using UnrealBuildTool;

public class OrvessaWebBridge : ModuleRules
{
	public OrvessaWebBridge(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// The portable core under Private/Core is plain C++20 over the standard library and RapidJSON; it
		// compiles here as part of this module, next to the adapters under Private/Unreal that connect it
		// to the engine. Its includes are rooted at Private ("Core/Json/OrvJson.h").
		CppStandard = CppStandardVersion.Cpp20;
		PrivateIncludePaths.Add(Path.Combine(ModuleDirectory, "Private"));

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
			// The maker's closed modules: the catalogue client and session (OrvCore) and the product tag
			// that imported meshes carry (OrvImport).
			"OrvCore",
			"OrvImport",
		});

		// The engine's copy of RapidJSON, which the core reads and writes JSON with.
		AddEngineThirdPartyPrivateStaticDependencies(Target, "RapidJSON");
	}
}
