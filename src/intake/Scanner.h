#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "imaging/Bitmap.h"
#include "intake/PageSource.h"
#include "intake/SaneLibrary.h"

namespace tavrene::intake {

/// A scanner as the system knows it and as a person does.
struct ScanDevice {
    std::string name;
    std::string label;
    bool isNothingButFeeder = false;
};

/// How a device is told to give pages of one kind; `label` is for the person.
struct ScanMode {
    std::string label;
    std::string mode;  ///< Empty where the device has no choice.
    int depth = 0;     ///< Bits a sample; 0 where it goes by the mode.
};

/// What there is to choose from; empty lists where the device has no choice.
struct ScanChoices {
    std::vector<std::string> sources;
    std::vector<ScanMode> modes;
    std::vector<int> resolutions;  ///< Dots per inch.
};

struct ScanSettings {
    std::string source;
    ScanMode mode;
    int resolution = 0;
    double paperWidth = 0;  ///< Millimetres; 0 for all that the device takes.
    double paperHeight = 0;
};

/// The scanners of this machine and its network. All is called from one thread; calls may take seconds.
class Scanners {
  public:
    /// `sane` must outlive this.
    explicit Scanners(const SaneLibrary& sane);
    ~Scanners();
    Scanners(const Scanners&) = delete;
    Scanners& operator=(const Scanners&) = delete;

    std::vector<ScanDevice> Find();

  private:
    const SaneLibrary& sane_;
};

/// One open scanner. Throws std::runtime_error with a plain sentence where the device refuses something.
class Scanner {
  public:
    /// The `Scanners` must be there as long as this, and `sane`.
    Scanner(const SaneLibrary& sane, const ScanDevice& device);
    ~Scanner();
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;

    ScanChoices Choices();

    /// Whether one sheet after the other comes from there by itself; `source` is empty where there is no
    /// choice.
    bool FeedsFrom(const std::string& source) const;

    /// Sets what the device has, and passes over the rest. Double feeds shall stop it where it notices them.
    void Set(const ScanSettings& settings);

    /// There is no further page: the usual end.
    struct NoMore {};
    /// `goOn` answered false.
    struct Cancelled {};
    using Page = std::variant<imaging::Bitmap, NoMore, Cancelled, Reason>;

    /// The next page, top first as the device gives it, with its resolution; `goOn` is asked again and again.
    Page Next(const std::function<bool()>& goOn);

    /// Ends what the device is doing. Behind the last page, however it came.
    void Stop() { sane_.Cancel(handle_); }

  private:
    struct Option {
        SANE_Int index = 0;
        const SANE_Option_Descriptor* descriptor = nullptr;  ///< None where the device does not have it.
    };

    Option Find(const char* name) const;
    SANE_Status Choose(const char* name, const std::string& value);
    SANE_Status Choose(const char* name, double value);
    int Resolution(int chosen) const;
    void SetPaper(const ScanSettings& settings);
    std::vector<ScanMode> Modes() const;
    SANE_Status ReadAll(std::vector<SANE_Byte>& data, const std::function<bool()>& goOn);

    const SaneLibrary& sane_;
    const bool isNothingButFeeder_;
    SANE_Handle handle_ = nullptr;
    int resolution_ = 0;
};

}  // namespace tavrene::intake
