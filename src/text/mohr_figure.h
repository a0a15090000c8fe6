// The figure of the sheet on the failure envelope of granular materials.
#pragma once

#include "platform/page.h"

Page mohrFigure();
