#include "equations/root_product.h"

#include <cmath>
#include <limits>

#include "numerics/constants.h"
#include "numerics/qfunctions.h"

namespace quorix {

QReal Size(const QComplex& value) {
    if (value.im.IsZero()) return Magnitude(value.re);
    QReal size;
    qcabs(value, size);
    return size;
}

std::vector<QComplex> RootProduct(const std::vector<QComplex>& values) {
    std::vector<QComplex> product = {{constants::kOne, {}}};
    for (const QComplex& value : values) {
        product.emplace_back();
        for (std::size_t k = product.size() - 1; k > 0; --k) {
            QComplex term;
            qcmul(product[k - 1], value, term);
            qcsub(term, product[k], product[k]);
        }
    }
    return product;
}

double RootResidual(const ExtendedPolynomial& polynomial, const std::vector<QComplex>& values) {
    constexpr double kNone = std::numeric_limits<double>::infinity();
    if (values.size() + 1 != polynomial.size()) return kNone;
    std::vector<QComplex> negated;
    for (const QComplex& value : values) {
        QReal size = Size(value);
        qneg(size);
        negated.push_back({size, {}});
    }
    const std::vector<QComplex> product = RootProduct(values);
    const std::vector<QComplex> sums = RootProduct(negated);
    double residual = 0.0;
    for (std::size_t k = 1; k < polynomial.size(); ++k) {
        const QReal coefficient = Quotient(polynomial[k], polynomial[0]);
        const QReal distance = Size({Difference(coefficient, product[k].re), product[k].im});
        if (distance.IsZero()) continue;
        if (sums[k].re.IsZero()) return kNone;
        residual = std::fmax(residual, qtoe(Quotient(distance, sums[k].re)));
    }
    return residual;
}

}  // namespace quorix
