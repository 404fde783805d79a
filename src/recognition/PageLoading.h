#pragma once

#include <optional>
#include <string>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "imaging/PageReader.h"

namespace tavrene::recognition {

/// Writes to the process log why an image gives no page, and tells the operator unless the file is of no type
/// that could hold a page, or there is no image library at all.
void TellPageError(app::ActivityLog& log, app::Operator& person, const std::string& imageName,
                   imaging::PageError error);

/// The page of an image, by the type that its extension stands for; why there is none is told.
std::optional<imaging::Page> LoadPage(const app::Files& files, app::ActivityLog& log, app::Operator& person,
                                      const std::string& path);

}  // namespace tavrene::recognition
