// quorix-formulas TEXT FOLDER: makes the library in FOLDER anew from the import text TEXT.

#include <iostream>

#include "reference/formula_library.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: quorix-formulas TEXT FOLDER\n";
        return 2;
    }
    quorix::FormulaLibrary library(argv[2]);
    const quorix::FormulaImportResult result = library.ImportFormulas(argv[1], false);
    if (!result.done) {
        std::cerr << argv[1] << ":" << result.problem.line << ": " << result.problem.message << "\n";
        return 1;
    }
    std::cout << result.formulas << " formulas\n";
    return 0;
}
