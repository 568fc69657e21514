#pragma once
// Sleep: the short pauses the forms make before they show.
void Sleep(int milliseconds);
void SetSleepDisabledForTest(bool disabled);
