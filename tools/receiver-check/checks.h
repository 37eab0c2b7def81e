#pragma once

#include "receiver-check/finding.h"
#include "receiver-check/installation.h"
#include "receiver-check/machine.h"

namespace vigrel {

// Each looks at one side of an installation. None of them changes anything, and none throws for what the
// folder holds.

// The configuration as a file: readable, in the code page, sections and lines that count.
void CheckFile(const cInstallation& installation, cFindings& findings);
// Sections and keys that nobody reads, values that aren't read as they are written.
void CheckKeys(const cInstallation& installation, cFindings& findings);
// Columns, forms of date and time.
void CheckList(const cInstallation& installation, cFindings& findings);
// Colours, sounds, lights of each category.
void CheckCategories(const cInstallation& installation, cFindings& findings);
// Lists of categories, place and size of popups.
void CheckPopups(const cInstallation& installation, cFindings& findings);
// Slips in what popups and printed lines are made of.
void CheckTemplates(const cInstallation& installation, cFindings& findings);
void CheckSenders(const cInstallation& installation, cFindings& findings);
void CheckPrinter(const cInstallation& installation, cFindings& findings);
void CheckLanguage(const cInstallation& installation, cFindings& findings);
// The lists that people write beside the configuration: colour rules, kinds of receivers.
void CheckLists(const cInstallation& installation, cFindings& findings);
void CheckAlarmFiles(const cInstallation& installation, cFindings& findings);
// The port and the rights of the user who runs the check.
void CheckMachine(const cInstallation& installation, const cMachine& machine, cFindings& findings);

}  // namespace vigrel
