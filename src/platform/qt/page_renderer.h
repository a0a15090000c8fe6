// Paints a page on anything that a QPainter paints on: the screen at any scale,
// paper, PDF, SVG, PNG. Texts are laid out in twips with the font's own unhinted
// measures, so that every resolution has them in the same places.
#pragma once

#include <QFont>
#include <string>
#include <vector>

#include "platform/page.h"

class QPainter;

/// A page font whose pixels are twips, for measuring and for painting under a scale. "Courier New" and
/// "MS Serif" stand for their metric twins; kerning is off, so that a text is as long as its pieces.
QFont twipFont(const PageFont& font);

/// A text as the core holds it: UTF-8, or Latin-1 where it is no UTF-8 (titles of old decks).
QString pageText(const std::string& text);

/// Paints the page with its upper left corner at the painter's origin, `unitsPerTwip` painter units to a
/// twip. What lies beyond the page is cut off. On a screen or an image horizontal and vertical lines are
/// whole device pixels, so that they are sharp.
void paintPage(QPainter& painter, const Page& page, double unitsPerTwip);

/// Each writes a whole file or leaves the one that was there: PathNotFound, PermissionDenied, DiskFull;
/// InvalidCall for no pages or a resolution that cannot be had. PDF and SVG hold vectors and texts.
void renderPdf(const std::vector<Page>& pages, const std::string& path);
void renderSvg(const Page& page, const std::string& path);
void renderPng(const Page& page, const std::string& path, int dpi);
