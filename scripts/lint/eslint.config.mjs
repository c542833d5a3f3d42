// What eslint checks: the rules that find mistakes, and the length of lines. The modules lie in a
// folder of the build, not beside this file.
import { createRequire } from "node:module";
import { join } from "node:path";

const require = createRequire(join(process.env.DOZEWELL_NODE_MODULES, "needed-by-lint.js"));
const js = require("@eslint/js");
const globals = require("globals");

// The pictures of icons, which nobody reads.
const pathData = '"[Mm]\\d[^"]*",?$';

const rules = {
  ...js.configs.recommended.rules,
  "array-callback-return": "error",
  eqeqeq: "error",
  "max-len": ["error", { code: 100, ignorePattern: pathData }],
  "no-constructor-return": "error",
  "no-duplicate-imports": "error",
  "no-promise-executor-return": "error",
  "no-self-compare": "error",
  "no-shadow": "error",
  "no-template-curly-in-string": "error",
  "no-unmodified-loop-condition": "error",
  "no-unreachable-loop": "error",
  "no-use-before-define": "error",
  "no-var": "error",
  "prefer-const": "error",
};

export default [
  { linterOptions: { reportUnusedDisableDirectives: "error" } },
  { files: ["simulator/web/**/*.js"], languageOptions: { globals: globals.browser }, rules },
  // What a test has the browser evaluate stands among the rest of it.
  {
    files: ["tests/web/**/*.mjs"],
    languageOptions: { globals: { ...globals.node, ...globals.browser } },
    rules,
  },
  {
    files: ["scripts/lint/*.mjs"],
    languageOptions: { globals: globals.node },
    rules,
  },
];
