#pragma once
// Lays the program's own string libraries into a scratch application folder
// and loads them, as the start does.
#include "support/scratch.h"

// Copies langfile0409.dll, edition0409.dll, country.dll and phonecode.dll
// from the ready application folder of the build into `store.app()`.
void InstallLibraries(const ScratchStore& store);
// Sets LanguageId "0409", CharsetId "0", copies and loads all four.
void LoadAllLibraries(const ScratchStore& store);
void UnloadAllLibraries();
// The list index of a country in the loaded country library, -1 if absent.
int CountryIndex(const QString& name);
