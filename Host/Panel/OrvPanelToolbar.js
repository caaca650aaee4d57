// orv-host adds this to the script of every page of the catalogue panel. It stands for what the editor's
// "Orv Catalog" tab has around its browser: the toolbar row above the site (the "Auto-Detect" check box,
// the Alt+R hint, "Copy URL"), and the input pre-processor that sees every key, the page's included.
(function () {
    "use strict";
    if (window.top !== window || /^orv-oauth-popup-/.test(window.name) || window.__orv_toolbar) {
        return;
    }
    const Texts = /*ORV_TOOLBAR_TEXTS*/ {};
    const Post = (Path, Body) =>
        fetch(Path, { method: "POST", headers: { "Content-Type": "application/json" }, body: JSON.stringify(Body) });

    // The editor's flag, newest first: the state asked for on connecting and the state pushed on a change
    // can cross, so the one with the higher revision wins.
    let State = { autoDetect: false, revision: -1 };
    let CheckBox = null;
    const Apply = (Next) => {
        if (Next && Next.revision > State.revision) {
            State = Next;
            if (CheckBox) {
                CheckBox.checked = State.autoDetect;
            }
        }
    };
    window.__orv_toolbar = Object.freeze({ state: Apply });
    const Refresh = () =>
        fetch("/__orv/toolbar")
            .then((Response) => Response.json())
            .then(Apply, () => {});
    window.addEventListener("orv-panel-connected", Refresh);
    Refresh();

    function Build() {
        const Host = document.createElement("div");
        Host.id = "orv-catalog-toolbar";
        // Fixed above the site like the tab's row above its browser; the site keeps clear of it through
        // --orv-toolbar-height. In its own shadow tree: the site's styles and queries neither reach it nor
        // see it.
        Host.style.cssText = "position:fixed;top:0;left:0;right:0;z-index:2147483647;";
        const Root = Host.attachShadow({ mode: "open" });
        Root.innerHTML = `<style>
            .bar { display: flex; align-items: center; gap: 12px; padding: 4px 8px; background: #1a1a1a;
                   color: #ddd; font: 13px system-ui, sans-serif; border-bottom: 1px solid #333; }
            .hint { flex: 1; color: #999; }
            button { font: inherit; }
        </style>
        <div class="bar"><label id="auto-detect"><input type="checkbox"> <span></span></label>
        <span class="hint"></span><button type="button" id="copy-url"></button></div>`;
        const Label = Root.getElementById("auto-detect");
        CheckBox = Label.querySelector("input");
        CheckBox.checked = State.autoDetect;
        Label.title = Texts.AutoDetectTooltip;
        Label.querySelector("span").textContent = Texts.AutoDetect;
        const Hint = Root.querySelector(".hint");
        Hint.textContent = Texts.Hint;
        Hint.title = Texts.HintTooltip;
        const Copy = Root.getElementById("copy-url");
        Copy.textContent = Texts.CopyUrl;
        Copy.title = Texts.CopyUrlTooltip;
        CheckBox.addEventListener("change", () => Post("/__orv/toolbar", { autoDetect: CheckBox.checked }).catch(() => {}));
        Copy.addEventListener("click", () => Post("/__orv/copy-url", {}).catch(() => {}));
        document.body.prepend(Host);
        document.documentElement.style.setProperty("--orv-toolbar-height", `${Host.offsetHeight}px`);
    }
    if (document.readyState === "loading") {
        document.addEventListener("DOMContentLoaded", Build);
    } else {
        Build();
    }

    // Every key press goes to the editor's key test with what Slate would report: the engine's key name,
    // the key code, the character typed and the modifiers.
    const NamedKeys = {
        AltLeft: "LeftAlt", AltRight: "RightAlt", ControlLeft: "LeftControl", ControlRight: "RightControl",
        ShiftLeft: "LeftShift", ShiftRight: "RightShift", Space: "SpaceBar", Backspace: "BackSpace",
        ArrowLeft: "Left", ArrowRight: "Right", ArrowUp: "Up", ArrowDown: "Down",
    };
    const Digits = ["Zero", "One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine"];
    const KeyName = (Event) => {
        if (Event.keyCode >= 65 && Event.keyCode <= 90) {
            return String.fromCharCode(Event.keyCode);
        }
        if (Event.keyCode >= 48 && Event.keyCode <= 57) {
            return Digits[Event.keyCode - 48];
        }
        return NamedKeys[Event.code] || Event.key;
    };
    document.addEventListener(
        "keydown",
        (Event) => {
            const Characters = [...Event.key];
            Post("/__orv/key", {
                key: KeyName(Event),
                keyCode: Event.keyCode,
                character: Characters.length === 1 ? Characters[0].codePointAt(0) : 0,
                alt: Event.altKey,
                ctrl: Event.ctrlKey,
                shift: Event.shiftKey,
            }).catch(() => {});
        },
        true,
    );
})();
