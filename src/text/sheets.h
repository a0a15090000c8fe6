// The sheets of the manual: a figure drawn from data, and a text.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/page.h"

struct Sheet {
    std::string form;  ///< the screen's name
    std::string caption;
    std::string page;          ///< name of its text page, whose first line is the sheet's title
    int printHeight;           ///< twips of the sheet that Print form prints: the figure without the text
    std::string mnuPrintText;  ///< name of the menu that prints the text
    std::function<Page()> picture;  ///< as wide as a screen, no higher than printHeight
};

const std::vector<Sheet>& sheets();

constexpr float sheetWidth = 9615;  ///< twips
