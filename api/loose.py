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
}
