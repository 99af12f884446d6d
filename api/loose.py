"""Families whose templates still take loose pointers and steps: the calls that stand for those of the registry, by file."""

CALLS = {
    "exchange/copy.cpp": {
        "CopyElements": "CopyElements<{D}, {elements}>",
        "CopyColour": "CopyColour<{D}>",
        "CopyToColour": "CopyToColour<{D}>",
        "CopyFromColour": "CopyFromColour<{D}>",
    },
    "exchange/copy_masked.cpp": {
        "CopyMasked": "CopyMasked<{D}, {elements}>",
        "CopyColourMasked": "CopyColourMasked<{D}>",
    },
    "exchange/copy_channels.cpp": {
        "CopyChannel": "CopyChannel<{D}, {srcElements}, {elements}>",
        "Split": "Split<{D}, {srcElements}>",
        "Merge": "Merge<{D}, {elements}>",
    },
    "exchange/set.cpp": {
        "SetElements": "SetElements<{D}, {elements}>",
        "SetColour": "SetColour<{D}>",
        "SetChannel": "SetChannel<{D}, {elements}>",
        "SetMasked": "SetMasked<{D}, {elements}>",
        "SetColourMasked": "SetColourMasked<{D}>",
    },
    "exchange/swap_channels.cpp": {
        "Duplicate": "Duplicate<{D}>",
        "SwapChannels": "SwapChannels<{D}, {elements}>",
        "SwapChannelsInPlace3": "SwapChannelsInPlace3<{D}>",
        "SwapChannelsInPlace4": "SwapChannelsInPlace4<{D}>",
        "SwapChannels3To4": "SwapChannels3To4<{D}>",
        "SwapChannels4To3": "SwapChannels4To3<{D}>",
    },
    "exchange/bits.cpp": {
        "ditherToBits": "ownDitherToBits",
        "unpackBits": "ownUnpackBits",
    },
    "exchange/border.cpp": {
        "CopyConstBorder": "CopyConstBorder<{D}, {elements}, {channels}>",
        "CopyReplicateBorder": "CopyReplicateBorder<{D}, {elements}, {channels}>",
        "ReplicateBorderInPlace": "ReplicateBorderInPlace<{D}, {elements}, {channels}>",
        "CopyWrapBorder": "CopyWrapBorder<{D}>",
        "WrapBorderInPlace": "WrapBorderInPlace<{D}>",
    },
    "exchange/mirror.cpp": {
        "Mirror": "Mirror<{D}, {elements}, {channels}>",
        "MirrorInPlace": "MirrorInPlace<{D}, {elements}, {channels}>",
    },
    "exchange/transpose.cpp": {
        "Transpose": "Transpose<{D}, {elements}>",
        "TransposeInPlace": "TransposeInPlace<{D}, {elements}>",
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
