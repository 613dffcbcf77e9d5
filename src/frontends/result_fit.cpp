#include "frontends/result_fit.h"

namespace quorix {

std::u16string CutToFit(std::u16string_view result, const std::function<bool(std::u16string_view)>& fits) {
    std::u16string text(result);
    while (!text.empty() && !fits(text)) {
        const std::size_t exponent = text.rfind(u'E');
        const bool hasMantissa = exponent != text.npos && exponent > 0;
        text.erase(hasMantissa ? exponent - 1 : text.size() - 1, 1);
    }
    return text;
}

}  // namespace quorix
