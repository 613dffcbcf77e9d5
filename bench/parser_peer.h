#pragma once

// The peer of expressions in one variable: muParser, its parser built beforehand.

#include <muParser.h>

namespace quorix::bench {

class ParserPeer {
  public:
    /// expression: in x.
    explicit ParserPeer(const char* expression) {
        parser_.DefineVar("x", &x_);
        parser_.SetExpr(expression);
    }
    // The parser knows the address of x_.
    ParserPeer(const ParserPeer&) = delete;
    ParserPeer& operator=(const ParserPeer&) = delete;

    double At(double x) {
        x_ = x;
        return parser_.Eval();
    }

  private:
    double x_ = 0.0;
    mu::Parser parser_;
};

}  // namespace quorix::bench
