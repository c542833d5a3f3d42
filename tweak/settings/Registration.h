// Binds the preferences domain to the settings store.
#pragma once

// Once, before anything is hooked. Without the preferences library the store stays all zero, and
// so `enabled` stays off.
void registerSettings();
