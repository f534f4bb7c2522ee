"use strict";

// Search, order and copying in a page of entries, which can be read without.
{
    const forms = [
        ["unicode", "Unicode", "unicode"],
        ["html", "HTML", "html5"],
        ["latex", "LaTeX", "latex"],
        ["markdown", "Markdown", "markdown"],
        ["tevo", "Tevo", "tevo"],
        ["cif-text", "CIF text", "cif-text"],
    ];
    const orders = [
        ["given", "as given"],
        ["name", "name"],
        ["formula", "formula"],
        ["length", "cell length"],
        ["year", "year"],
    ];

    const element = (name, attributes = {}, ...children) => {
        const made = document.createElement(name);
        for (const [key, value] of Object.entries(attributes)) made.setAttribute(key, value);
        made.append(...children);
        return made;
    };

    // Texts are folded cluster by cluster: a character and the marks on it.
    const table = new Map();
    const cluster = /\P{M}\p{M}*|\p{M}+/gu;

    const readTable = () => {
        const folding = document.querySelector("script#folding");
        for (const [result, characters] of Object.entries(JSON.parse(folding.textContent))) {
            for (const character of characters) table.set(character, result);
        }
    };

    const foldedBase = (character) => table.get(character) ?? character;

    const foldedCluster = (text) => {
        const [base, ...marks] = text.normalize("NFD");
        if (marks.length === 0) return foldedBase(text);
        const isBar = (mark) => mark === "\u0304" || mark === "\u0305";
        if (/\d/.test(base) && isBar(marks[0])) return "-" + base;
        const [composed, ...others] = text.normalize("NFC");
        return foldedBase(composed) + (/\p{L}/u.test(base) ? "" : others.join(""));
    };

    // Of a character that becomes several, "beta" of β, all but the first are written as others: a
    // match may end among them, but not begin.
    const inside = 0xe000;
    const asInside = (character) => String.fromCodePoint(character.codePointAt(0) + inside);
    const asOne = (text) => text[0] + text.slice(1).replace(/./gs, asInside);

    const foldedAs = (text, result) =>
        text
            .replace(/[^\0-\x7f]\p{M}*|[\0-\x7f]\p{M}+/gu, result)
            .replaceAll("`", "'")
            .replaceAll('"', "''")
            .replace(/\s+/g, " ")
            .toLowerCase();

    const folded = (text) =>
        foldedAs(text, (character) => {
            const result = foldedCluster(character).toLowerCase();
            return /^[\0-\x7f]{2,}$/.test(result) ? asOne(result) : result;
        });

    // What finds a word in such a text.
    const finderOf = (word) => {
        const [first, ...others] = [...word].map((character) => {
            const plain = character.replace(/[^\w\s]/g, "\\$&");
            return { plain, either: character < "\x80" ? `(?:${plain}|${asInside(character)})` : plain };
        });
        const expression = new RegExp(first.plain + others.map((o) => o.either).join(""), "g");
        const hasInside = /[\ue000-\ue07f]/;
        return {
            isIn: (text) =>
                text.includes(word) || (hasInside.test(text) && text.search(expression) >= 0),
            all: (text) => text.matchAll(expression),
        };
    };

    // A bar over a digit is a style of the page, and a character of the text.
    const textOf = (node) => {
        const text = node.data;
        return node.parentElement.closest(".bar") ? text.replace(/\S/gu, "$&\u0305") : text;
    };

    const textNodes = (root) => {
        const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
        const nodes = [];
        while (walker.nextNode()) nodes.push(walker.currentNode);
        return nodes;
    };

    const searched = ".value, .cell td:not(.unit)";
    const searchedInIndex = "a, span:not(.length)";

    // Formulae are found with their blanks and without.
    const isFormula = (value) => value.closest("[data-field$='Formula']") !== null;

    const foldedText = (root) => {
        const texts = [];
        for (const value of root.querySelectorAll(searched)) {
            const bars = value.querySelector(".bar");
            const text = folded(bars ? textNodes(value).map(textOf).join("") : value.textContent);
            texts.push(text);
            if (isFormula(value)) texts.push(text.replaceAll(" ", ""));
        }
        return texts.join("\n");
    };

    // The places of a text, folded, and where each of its characters stands in the nodes.
    const placesIn = (value, hasBlanks) => {
        let text = "";
        const places = [];
        for (const node of textNodes(value)) {
            const isBar = node.parentElement.closest(".bar") !== null;
            for (const match of node.data.matchAll(cluster)) {
                const shown = folded(isBar ? match[0] + "\u0305" : match[0]);
                if (shown === " " && (!hasBlanks || text.endsWith(" "))) continue;
                const place = { node, from: match.index, to: match.index + match[0].length };
                for (let i = 0; i < shown.length; ++i) places.push(place);
                text += shown;
            }
        }
        return { text, places };
    };

    const rangesIn = (value, words, hasBlanks = true) => {
        const { text, places } = placesIn(value, hasBlanks);
        const ranges = [];
        for (const word of words) {
            for (const { 0: found, index } of word.all(text)) {
                const first = places[index];
                const last = places[index + found.length - 1];
                const range = new Range();
                range.setStart(first.node, first.from);
                range.setEnd(last.node, last.to);
                ranges.push(range);
            }
        }
        const isBroken = hasBlanks && ranges.length === 0 && isFormula(value);
        return isBroken ? rangesIn(value, words, false) : ranges;
    };

    const addSearch = (articles, lines) => {
        readTable();
        const lists = [...document.querySelectorAll("#index ol")];
        const groups = [...document.querySelectorAll("main > .group")];
        const texts = new Array(articles.length);
        const near = new Set();
        let words = [];

        const input = element("input", { id: "search", type: "search", autocomplete: "off" });
        const order = element("select", { id: "order" });
        for (const [value, shown] of orders) order.append(element("option", { value }, shown));
        const count = element("output", { id: "count", for: "search" });
        const tools = element(
            "div",
            { class: "tools", role: "search" },
            element("label", { for: "search" }, "Search"),
            input,
            element("label", { for: "order" }, "Sort by"),
            order,
            count,
        );
        document.querySelector("header.page").after(tools);

        const textAt = (i) => (texts[i] ??= foldedText(articles[i]));

        // While nothing else is to be done, so that the first key is answered soon.
        const prepare = (from) => {
            window.requestIdleCallback?.((deadline) => {
                let i = from;
                while (i < articles.length && deadline.timeRemaining() > 1) textAt(i++);
                if (i < articles.length) prepare(i);
            });
        };

        const highlight = () => {
            if (!CSS.highlights) return;
            const found = new Highlight();
            for (const group of words.length > 0 ? near : []) {
                const values = group.matches("ol") ? searchedInIndex : searched;
                for (const part of group.children) {
                    if (part.hidden) continue;
                    for (const value of part.querySelectorAll(values)) {
                        for (const range of rangesIn(value, words)) found.add(range);
                    }
                }
            }
            CSS.highlights.set("found", found);
        };

        // Hides what does not match in groups, of lines or entries, each of which is so high. A group is never hidden
        // itself: that takes a browser as long as the page is.
        const hideOthers = (parents, rem, matches) => {
            for (const group of parents) {
                let shown = 0;
                for (const part of group.children) {
                    const isShown = matches.get(part);
                    if (part.hidden === isShown) part.hidden = !isShown;
                    if (isShown) ++shown;
                }
                const isWhole = shown === group.children.length;
                group.style.containIntrinsicBlockSize = isWhole ? "" : `${shown * rem}rem`;
            }
        };

        const show = () => {
            const wanted = foldedAs(input.value, foldedCluster);
            words = wanted.split(" ").filter(Boolean).map(finderOf);
            const matches = new Map();
            let shown = 0;
            for (let i = 0; i < articles.length; ++i) {
                const text = words.length > 0 ? textAt(i) : "";
                const isShown = words.every((word) => word.isIn(text));
                matches.set(articles[i], isShown).set(lines[i], isShown);
                if (isShown) ++shown;
            }
            hideOthers(groups, 34, matches);
            hideOthers(lists, 3.6, matches);
            count.value = `${shown} of ${articles.length} entries`;
            highlight();
        };

        // What is found is at the top.
        const index = document.getElementById("index");
        let isScrolled = true;
        const showFromTop = () => {
            if (isScrolled) {
                window.scrollTo({ top: 0 });
                index.scrollTop = 0;
                isScrolled = false;
            }
            show();
        };

        const keys = {
            given: (i) => i,
            name: (i) => articles[i].querySelector("[data-field='Compound Name'] .value")?.textContent,
            formula: (i) =>
                articles[i].querySelector("[data-field='Formula'] .value")?.textContent,
            length: (i) => Number(lines[i].dataset.length ?? NaN),
            year: (i) => Number(lines[i].dataset.year ?? NaN),
        };
        const collator = new Intl.Collator("en", { numeric: true, ignorePunctuation: true });
        const formulae = new Intl.Collator("en", { numeric: true });
        const isMissing = (key) => key === undefined || key === "" || Number.isNaN(key);

        // As many in each as before.
        const refill = (containers, children, entries) => {
            const sizes = containers.map((container) => container.children.length);
            let next = 0;
            containers.forEach((container, k) => {
                const end = next + sizes[k];
                container.replaceChildren(...entries.slice(next, end).map(({ i }) => children[i]));
                next = end;
            });
        };

        const sort = () => {
            const entries = articles.map((article, i) => ({ i, key: keys[order.value](i) }));
            entries.sort((a, b) => {
                if (isMissing(a.key) || isMissing(b.key)) return isMissing(a.key) - isMissing(b.key);
                if (typeof a.key === "number") return a.key - b.key;
                return (order.value === "formula" ? formulae : collator).compare(a.key, b.key);
            });
            refill(lists, lines, entries);
            refill(groups, articles, entries);
            showFromTop();
        };

        let isHighlighting = false;
        const highlightSoon = () => {
            if (isHighlighting) return;
            isHighlighting = true;
            requestAnimationFrame(() => {
                isHighlighting = false;
                highlight();
            });
        };
        // Those that are near already say so no more.
        const isNear = { contentVisibilityAuto: true };
        for (const group of [...groups, ...lists]) {
            if (group.firstElementChild.checkVisibility?.(isNear)) near.add(group);
        }
        document.addEventListener("contentvisibilityautostatechange", (event) => {
            if (event.skipped) near.delete(event.target);
            else near.add(event.target);
            if (words.length > 0) highlightSoon();
        });
        input.addEventListener("input", showFromTop);
        order.addEventListener("change", sort);
        input.addEventListener("keydown", (event) => {
            if (event.key === "Escape") {
                input.value = "";
                showFromTop();
            } else if (event.key === "Enter") {
                document.querySelector("#index li:not([hidden]) a")?.click();
            }
        });
        const noteScrolling = () => (isScrolled = window.scrollY > 0 || index.scrollTop > 0);
        document.addEventListener("scroll", noteScrolling, { capture: true, passive: true });
        document.addEventListener("keydown", (event) => {
            const isTyping = event.target.matches("input, select, [role=menuitem]");
            if (event.key !== "/" || isTyping || event.ctrlKey || event.metaKey) return;
            event.preventDefault();
            input.focus();
        });
        show();
        prepare(0);
    };

    const addCopying = () => {
        const said = element("output", { id: "said" });
        document.body.append(said);
        const button = element(
            "button",
            { type: "button", class: "copy", "aria-haspopup": "menu", "aria-expanded": "false" },
            "Copy",
        );
        const menu = element("div", { class: "menu", role: "menu", hidden: "" });
        for (const [form, shown] of forms) {
            menu.append(
                element(
                    "button",
                    { type: "button", role: "menuitem", tabindex: "-1", "data-form": form },
                    shown,
                ),
            );
        }
        document.querySelector("main").append(menu);
        let field = null;
        let silence = 0;

        const textAs = (form) => {
            const texts = JSON.parse(field.dataset.forms ?? "{}");
            const target = forms.find(([name]) => name === form)[2];
            const value = field.querySelector(".value");
            const shown = target === "html5" ? value?.innerHTML : texts.unicode;
            return texts[target] ?? shown ?? value.textContent;
        };

        const close = () => {
            menu.hidden = true;
            button.setAttribute("aria-expanded", "false");
        };

        const offer = (event) => {
            const next = event.target.closest?.(".field");
            if (!next || next === field || !menu.hidden) return;
            // A pointer at rest does not take the button from who came to it by keys.
            if (event.type === "pointerover" && button.matches(":focus-visible")) return;
            field = next;
            const label = field.dataset.field;
            button.setAttribute("aria-label", `Copy ${label}`);
            menu.setAttribute("aria-label", `Copy ${label} as`);
            field.querySelector(".label").after(button);
        };

        const open = () => {
            const place = button.getBoundingClientRect();
            menu.hidden = false;
            const right = document.documentElement.clientWidth - menu.offsetWidth - 8;
            const bottom = document.documentElement.clientHeight - menu.offsetHeight - 8;
            menu.style.left = `${Math.max(8, Math.min(place.left, right))}px`;
            menu.style.top = `${Math.max(8, Math.min(place.bottom + 4, bottom))}px`;
            button.setAttribute("aria-expanded", "true");
            menu.firstElementChild.focus();
        };

        const write = async (text) => {
            try {
                await navigator.clipboard.writeText(text);
                return true;
            } catch {
                return false;
            }
        };

        const copy = async (item) => {
            const done = await write(textAs(item.dataset.form));
            said.value = done ? `Copied as ${item.textContent}` : "The clipboard is not to be had";
            clearTimeout(silence);
            silence = setTimeout(() => (said.value = ""), 4000);
            close();
            button.focus();
        };

        document.addEventListener("pointerover", offer);
        document.addEventListener("focusin", offer);
        button.addEventListener("click", () => (menu.hidden ? open() : close()));
        menu.addEventListener("click", (event) => {
            const item = event.target.closest("[role=menuitem]");
            if (item) copy(item);
        });
        menu.addEventListener("keydown", (event) => {
            const items = [...menu.children];
            const at = items.indexOf(document.activeElement);
            const to = {
                ArrowDown: (at + 1) % items.length,
                ArrowUp: (at + items.length - 1) % items.length,
                Home: 0,
                End: items.length - 1,
            }[event.key];
            if (to !== undefined) {
                event.preventDefault();
                items[to].focus();
            } else if (event.key === "Escape" || event.key === "Tab") {
                event.preventDefault();
                close();
                button.focus();
            }
        });
        document.addEventListener("pointerdown", (event) => {
            if (!menu.hidden && !menu.contains(event.target) && event.target !== button) close();
        });
        document.addEventListener("scroll", close, { capture: true, passive: true });
    };

    const articles = [...document.querySelectorAll("main article")];
    const lines = [...document.querySelectorAll("#index li")];
    if (lines.length > 0) addSearch(articles, lines);
    addCopying();
}
