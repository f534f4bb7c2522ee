export default {
    extends: "stylelint-config-standard",
    rules: {
        // Nothing is fetched: a page is one file.
        "function-url-scheme-allowed-list": [],
        "at-rule-disallowed-list": ["import", "font-face"],
        "no-descending-specificity": null, // order is by subject
        "max-nesting-depth": 2,
    },
};
