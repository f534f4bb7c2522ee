#pragma once

/// The characters that stand for another in a script; 0 where there is none.
struct ScriptForms {
    char32_t base;
    char32_t superscript;
    char32_t subscript;
};

/// The forms of a character, or null.
const ScriptForms* script_forms_of(char32_t base);

/// A raised or lowered character.
struct ScriptCharacter {
    char32_t base;  ///< 0: it is none.
    int valign;     ///< 1: raised, -1: lowered.
};

/// What a character is a form of.
ScriptCharacter script_character(char32_t form);
