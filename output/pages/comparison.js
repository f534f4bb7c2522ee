"use strict";

// Keys that go from difference to difference in a page of a comparison.
{
    const rows = [...document.querySelectorAll(".different, .only-left, .only-right")];
    const said = document.createElement("output");
    said.id = "said";
    document.body.append(said);

    const hint = document.createElement("p");
    hint.className = "hint";
    hint.textContent = "Keys: n next difference, p previous one";
    if (rows.length > 1) document.querySelector("header.page").append(hint);

    // The row that holds the focus, or the one behind which it stands.
    const place = () => {
        const focused = document.activeElement;
        if (!focused || focused === document.body) return -1;
        const at = rows.findIndex((row) => row.contains(focused));
        if (at >= 0) return at;
        const behind = rows.findIndex(
            (row) => focused.compareDocumentPosition(row) & Node.DOCUMENT_POSITION_FOLLOWING,
        );
        return behind < 0 ? rows.length - 1 : behind - 1;
    };

    document.addEventListener("keydown", (event) => {
        const step = { n: 1, p: -1 }[event.key];
        if (!step || rows.length === 0 || event.ctrlKey || event.metaKey || event.altKey) return;
        event.preventDefault();
        const at = Math.max(0, Math.min(rows.length - 1, place() + step));
        rows[at].focus({ preventScroll: true });
        rows[at].scrollIntoView({ block: "center" });
        said.value = `Difference ${at + 1} of ${rows.length}`;
    });
}
