#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/Files.h"
#include "review/doubts/Doubts.h"

namespace tavrene::review {

/// A box of a form that is in doubt.
struct DoubtfulBox {
    int row = 0;  ///< Its place in the document, from 1.
    DoubtReason reason = DoubtReason::NearThreshold;
    bool isChecked = false;  ///< In the document.
    int ink = 0;             ///< Tenths of a percent.
    bool operator==(const DoubtfulBox&) const = default;
};

using FormDoubts = std::vector<DoubtfulBox>;

/// What was found to be in doubt of forms, in a file that may be deleted at any time.
class DoubtCache {
  public:
    /// `files` must outlive the cache.
    DoubtCache(app::Files& files, std::string path) : files_(files), path_(std::move(path)) {}

    /// Takes over what the file holds; one that cannot be read, or is not whole, holds nothing.
    void Load();

    /// What is known of a form (the name of its document) as it was when it had this stamp; else null.
    const FormDoubts* Find(const std::string& form, const std::string& stamp);

    void Put(const std::string& form, const std::string& stamp, FormDoubts doubts);

    /// Writes what was found or put since loading, if there is anything new. What cannot be written is found
    /// out again the next time.
    void Save();

    /// Writes what was put without having been loaded beside what the file holds by now, as far as `isThere`
    /// says that the form is still there.
    void AddToFile(const std::function<bool(const std::string& form)>& isThere);

  private:
    struct Entry {
        std::string stamp;
        FormDoubts doubts;
        bool isAlive = false;  // asked for since loading: the others are of forms that have gone
    };

    app::Files& files_;
    std::string path_;
    std::map<std::string, Entry> entries_;
    bool isChanged_ = false;
};

}  // namespace tavrene::review
