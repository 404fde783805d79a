#include "app/Numeric.h"

#include <charconv>
#include <system_error>

namespace tavrene::app {

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
    if (error == std::errc::result_out_of_range)
        return text.front() == '-' ? std::numeric_limits<double>::lowest()
                                   : std::numeric_limits<double>::max();
    return error == std::errc() ? value : 0.0;
}

}  // namespace tavrene::app
