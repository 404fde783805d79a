#include "app/Numeric.h"

#include <charconv>
#include <system_error>

namespace tavrene::app {
namespace {

// from_chars tells of both ends of its range alike.
bool IsTooSmall(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos)
        return number[exponent + 1] == '-';
    return number.find('.') < number.find_first_of("123456789");
}

}  // namespace

double LeadingNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos)
        return 0.0;
    text.remove_prefix(start);
    if (text.front() == '+')
        text.remove_prefix(1);
    // from_chars also takes "inf" and "nan", which are no numbers to an operator.
    const std::size_t first = text.find_first_not_of("-.");
    if (first == std::string_view::npos || text[first] < '0' || text[first] > '9')
        return 0.0;
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isOutOfRange = error == std::errc::result_out_of_range;
    if (isOutOfRange && !IsTooSmall(text.substr(0, static_cast<std::size_t>(end - text.data()))))
        return text.front() == '-' ? std::numeric_limits<double>::lowest()
                                   : std::numeric_limits<double>::max();
    return error == std::errc() ? value : 0.0;
}

}  // namespace tavrene::app
