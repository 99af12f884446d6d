"""Families whose templates still take loose pointers and steps: the calls that stand for those of the registry, by file."""

CALLS = {
    "arith/add_sub.cpp": {
        "Add": "Add<{S}, {elements}, {channels}>",
        "AddFloat": "AddFloat<{S}, {elements}, {channels}>",
        "Sub": "Sub<{S}, {elements}, {channels}>",
        "SubFloat": "SubFloat<{S}, {elements}, {channels}>",
    },
    "arith/mul.cpp": {
        "Mul": "Mul<{S}, {elements}, {channels}>",
        "MulFloat": "MulFloat<{S}, {elements}, {channels}>",
    },
    "arith/mul_complex.cpp": {
        "MulComplex": "MulComplex<{S}, {elements}, {channels}>",
        "MulComplexFloat": "MulComplexFloat<{S}, {elements}, {channels}>",
    },
    "arith/div.cpp": {
        "Div": "Div<{S}, {elements}, {channels}>",
        "DivFloat": "DivFloat<{S}, {elements}, {channels}>",
    },
    "arith/div_complex.cpp": {
        "DivComplex": "DivComplex<{S}, {elements}, {channels}>",
        "DivComplexFloat": "DivComplexFloat<{S}, {elements}, {channels}>",
    },
    "arith/div_round.cpp": {
        "DivRound": "DivRound<{S}, {elements}, {channels}>",
    },
    "arith/add_sub_c.cpp": {
        "AddC": "AddC<{S}, {elements}, {channels}>",
        "AddCFloat": "AddCFloat<{S}, {elements}, {channels}>",
        "SubC": "SubC<{S}, {elements}, {channels}>",
        "SubCFloat": "SubCFloat<{S}, {elements}, {channels}>",
    },
    "arith/mul_c.cpp": {
        "MulC": "MulC<{S}, {elements}, {channels}>",
        "MulCFloat": "MulCFloat<{S}, {elements}, {channels}>",
        "MulCComplex": "MulCComplex<{S}, {elements}, {channels}>",
        "MulCComplexFloat": "MulCComplexFloat<{S}, {elements}, {channels}>",
    },
    "arith/div_c.cpp": {
        "DivC": "DivC<{S}, {elements}, {channels}>",
        "DivCFloat": "DivCFloat<{S}, {elements}, {channels}>",
        "DivCComplex": "DivCComplex<{S}, {elements}, {channels}>",
        "DivCComplexFloat": "DivCComplexFloat<{S}, {elements}, {channels}>",
    },
    "arith/mul_scale.cpp": {
        "MulScale": "MulScale<{S}, {elements}, {channels}>",
        "MulCScale": "MulCScale<{S}, {elements}, {channels}>",
    },
    "arith/logical.cpp": {
        "Logical<And>": "Logical<{S}, {elements}, {channels}, And>",
        "LogicalC<And>": "LogicalC<{S}, {elements}, {channels}, And>",
        "Logical<Or>": "Logical<{S}, {elements}, {channels}, Or>",
        "LogicalC<Or>": "LogicalC<{S}, {elements}, {channels}, Or>",
        "Logical<Xor>": "Logical<{S}, {elements}, {channels}, Xor>",
        "LogicalC<Xor>": "LogicalC<{S}, {elements}, {channels}, Xor>",
        "Not": "Not<{S}, {elements}, {channels}>",
    },
    "arith/shift.cpp": {
        "LShiftC": "LShiftC<{S}, {elements}, {channels}>",
        "RShiftC": "RShiftC<{S}, {elements}, {channels}>",
    },
    "exchange/convert.cpp": {
        "Convert": "Convert<{S}, {D}, {elements}, {channels}>",
        "ConvertRounded": "ConvertRounded<{D}, {elements}, {channels}>",
    },
    "exchange/scale.cpp": {
        "ScaleWiden": "ScaleWiden<{D}, {elements}, {channels}>",
        "ScaleNarrow": "ScaleNarrow<{S}, {elements}, {channels}>",
        "ScaleToFloat": "ScaleToFloat<{elements}, {channels}>",
        "ScaleFromFloat": "ScaleFromFloat<{elements}, {channels}>",
    },
    "filter/filter.cpp": {
        "Filter": "Filter<{S}, {elements}, {channels}>",
        "FilterFloat": "FilterFloat<{S}, {elements}, {channels}>",
    },
    "filter/filter_64f.cpp": {
        "filter64f": "ownFilter64f",
        "filterBufSize64f": "ownFilterBufSize64f",
    },
    "filter/filter_32f.cpp": {
        "Filter32f": "Filter32f<{S}, {elements}, {channels}>",
    },
    "filter/filter_round_int.cpp": {
        "FilterRound": "FilterRound<{S}, {elements}, {channels}>",
    },
    "filter/filter_round_32f.cpp": {
        "FilterRound32f": "FilterRound32f<{S}, {elements}, {channels}>",
    },
    "filter/filter_row.cpp": {
        "FilterRow": "FilterRow<{S}, {elements}, {channels}>",
        "FilterRowFloat": "FilterRowFloat<{S}, {elements}, {channels}>",
        "FilterRow32f": "FilterRow32f<{S}, {elements}, {channels}>",
    },
    "filter/filter_column.cpp": {
        "FilterColumn": "FilterColumn<{S}, {elements}, {channels}>",
        "FilterColumnFloat": "FilterColumnFloat<{S}, {elements}, {channels}>",
        "FilterColumn32f": "FilterColumn32f<{S}, {elements}, {channels}>",
    },
    "filter/box.cpp": {
        "FilterBox": "FilterBox<{S}, {elements}, {channels}>",
        "FilterBoxInPlace": "FilterBoxInPlace<{S}, {elements}, {channels}>",
    },
    "filter/sum_window.cpp": {
        "SumWindowRow": "SumWindowRow<{S}, {elements}>",
        "SumWindowColumn": "SumWindowColumn<{S}, {elements}>",
    },
}
