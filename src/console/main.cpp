#include <string_view>
#include <vector>

#include "console/console_main.h"
#include "engine/eval_matrix.h"
#include "matrix/matrix_operators.h"

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    quorix::SetMatrixOperators(quorix::MatrixOperatorTable());
    return quorix::RunConsole(arguments);
}
