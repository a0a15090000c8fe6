// Pictures of windows, for a look at them.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/qt/form.h"

/// With TOLMARK_PICTURES set to a folder: the form as it looks now, as a PNG there.
inline void savePicture(Form& form, const std::string& name) {
    const QString folder = qEnvironmentVariable("TOLMARK_PICTURES");
    if (folder.isEmpty()) return;
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.grab().save(folder + "/" + QString::fromStdString(name) + ".png"));
}
