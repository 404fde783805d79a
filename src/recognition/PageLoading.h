#pragma once

#include <optional>
#include <string>
#include <variant>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "imaging/PageReader.h"

namespace tavrene::recognition {

/// The page of an image, by the type that its extension stands for. Why there is none is written to the
/// process log, and the operator is told unless the file is of no type that could hold a page, or there is
/// no image library at all.
std::variant<imaging::Page, imaging::PageError> LoadPageOrReason(const app::Files& files,
                                                                 app::ActivityLog& log, app::Operator& person,
                                                                 const std::string& path);

/// The same for who needs no reason.
std::optional<imaging::Page> LoadPage(const app::Files& files, app::ActivityLog& log, app::Operator& person,
                                      const std::string& path);

}  // namespace tavrene::recognition
