// The pages' scripts are plain scripts of one page, without modules: strict, and with a browser's names alone.
import js from "@eslint/js";
import globals from "globals";

export default [
    js.configs.recommended,
    {
        files: ["output/pages/*.js"],
        languageOptions: { ecmaVersion: 2022, sourceType: "script", globals: globals.browser },
        linterOptions: { reportUnusedDisableDirectives: "error" },
        rules: {
            strict: ["error", "global"],
            eqeqeq: "error",
            curly: ["error", "multi-line"],
            "no-eval": "error",
            "no-implied-eval": "error",
            "no-new-func": "error",
            "no-shadow": "error",
            "no-var": "error",
            "no-implicit-globals": "error",
            "prefer-const": "error",
            "no-console": "error",
            // Texts of entries reach the page as text nodes, never as mark-up.
            "no-restricted-syntax": ["error",
                "AssignmentExpression > MemberExpression.left[property.name=/HTML$/]",
                "CallExpression[callee.property.name=/HTML(Unsafe)?$/]",
                "CallExpression[callee.object.name='document'][callee.property.name=/^write/]"],
        },
    },
];
