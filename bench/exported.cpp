// Arguments from the registry's table.
#include "exported.h"

#include <cstring>
#include <map>
#include <stdexcept>

namespace pxlbench {
namespace {

using generic::Meaning;
using generic::Param;
using generic::Role;

const generic::Member* memberOf(const std::string& name) {
    static const auto all = [] {
        std::map<std::string, const generic::Member*> members;
        for (const generic::Member& member : generic::members()) members[std::string(member.name)] = &member;
        return members;
    }();
    const auto found = all.find("pxli" + name);
    if (found == all.end()) throw std::invalid_argument(name);
    return found->second;
}

// The parts of a complex element are channels.
int typeOf(const Param& p) {
    static const std::map<std::string_view, int> depths = {{"8u", CV_8U},   {"8s", CV_8S},   {"16u", CV_16U},
                                                           {"16s", CV_16S}, {"32s", CV_32S}, {"32f", CV_32F}};
    const bool complex = p.type.ends_with("c");
    return CV_MAKETYPE(depths.at(p.type.substr(0, p.type.size() - complex)), p.elements * (complex ? 2 : 1));
}

template <class T>
void convert(const std::array<int, 8>& from, uint8_t* to) {
    for (size_t i = 0; i < from.size(); ++i) {
        const auto value = static_cast<T>(from[i]);
        std::memcpy(to + i * sizeof value, &value, sizeof value);
    }
}

} // namespace

ExportedCall::ExportedCall(const std::string& name, const Numbers& numbers)
    : member_(memberOf(name)), args_(static_cast<size_t>(member_->count)) {
    for (int i = 0; i < member_->count; ++i) {
        const Param& p = member_->params[i];
        switch (p.role) {
        case Role::Source:
            sourcePlaces_.push_back({i, member_->stepOf(i)});
            sources_.push_back(typeOf(p));
            break;
        case Role::Destination:
        case Role::InPlace:
            destinationPlace_ = {i, member_->stepOf(i)};
            destination_ = typeOf(p);
            break;
        case Role::Size:
            sizePlace_ = i;
            break;
        default:
            store(i, numbers);
        }
    }
}

void ExportedCall::store(int position, const Numbers& numbers) {
    const Param& p = member_->params[position];
    reference::Arg& arg = args_[static_cast<size_t>(position)];
    if (generic::isArray(p)) {
        arg.ptr = constants_.data();
        const bool complex = p.type.ends_with("c");
        const int size = generic::elementBytes(p.type) / (complex ? 2 : 1);
        if (p.type.starts_with("32f"))
            convert<float>(numbers.constants, constants_.data());
        else if (size == 1)
            convert<uint8_t>(numbers.constants, constants_.data());
        else if (size == 2)
            convert<uint16_t>(numbers.constants, constants_.data());
        else
            convert<int32_t>(numbers.constants, constants_.data());
    } else if (p.role == Role::Element) {
        arg.num = numbers.constants[0];
        arg.real = numbers.constants[0];
    } else if (p.role == Role::Integer) {
        arg.num = p.meaning == Meaning::ScaleFactor ? numbers.scaleFactor : numbers.roundMode;
    }
}

int ExportedCall::operator()(Frame& f) {
    const auto place = [&](Place at, const cv::Mat& image) {
        args_[static_cast<size_t>(at.image)].ptr = image.data;
        args_[static_cast<size_t>(at.step)].num = static_cast<int64_t>(image.step);
    };
    for (size_t i = 0; i < sourcePlaces_.size(); ++i) place(sourcePlaces_[i], f.src[i]);
    place(destinationPlace_, f.dst[0]);
    reference::Arg& size = args_[static_cast<size_t>(sizePlace_)];
    size.width = f.size.width;
    size.height = f.size.height;
    return member_->call(args_.data());
}

} // namespace pxlbench
