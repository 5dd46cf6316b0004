// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <string>

namespace folioforge {

/// The last number given to each name, since thousands of documents may use the same names.
using NameNumbers = std::map<std::string, int>;

/// `name` or, where that is taken, the name with the next number behind it, such as "name_2".
template<typename Taken>
std::string freeName(const std::string &name, NameNumbers &numbers, const Taken &isTaken) {
    std::string candidate = name;
    while (isTaken(candidate)) {
        int &number = numbers.try_emplace(name, 1).first->second;
        candidate = name + "_" + std::to_string(++number);
    }
    return candidate;
}

} // namespace folioforge
