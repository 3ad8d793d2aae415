#ifndef TEXT_DECIMAL_H
#define TEXT_DECIMAL_H

namespace text {

// The exact decimal digits of a double: the value is 0.digits times ten to the power of `point`.
struct Decimal {
    char digits[800]; // the longest double has 767
    int size;         // 0: the value is 0
    int point;

    char at(int index) const { return index >= 0 && index < size ? digits[index] : '0'; }
};

// `value` is finite and not negative.
void expand(Decimal& decimal, double value);
// Keeps so many digits, at least; rounds to the nearest, and a tie to the even digit.
void round(Decimal& decimal, int keep);

} // namespace text

#endif
