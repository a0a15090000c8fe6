// The manual: ten sections, each a page of its own.
#pragma once

#include <string>
#include <vector>

struct ManualSection {
    std::string title;
    std::string page;  ///< name of its text page
};

/// In order; a section's number, from 1, is the TableKind that it is asked for by.
const std::vector<ManualSection>& manualSections();
