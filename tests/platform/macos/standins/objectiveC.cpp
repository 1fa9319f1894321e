// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "objectiveC.h"

#include <cstring>
#include <memory>

extern "C" {
int __CFConstantStringClassReference[32] __attribute__((weak));
}

namespace standin::objc {

std::map<std::string, std::vector<std::uint8_t>> structures;
std::vector<std::string> unanswered;
int system = 13;

namespace {

std::map<const void *, Thing> &classes()
{
    static std::map<const void *, Thing> all;
    return all;
}

/// Fast enumeration: the first word of the state says whether all were handed out.
Answer enumerate(const Thing &array, const std::uint64_t *arguments)
{
    static unsigned long mutations = 0;
    auto *state = reinterpret_cast<std::uint64_t *>(arguments[0]);
    if (state[0] != 0)
        return {};
    state[0] = 1;
    state[1] = reinterpret_cast<std::uint64_t>(array.elements.data());
    state[2] = reinterpret_cast<std::uint64_t>(&mutations);
    return word(array.elements.size());
}

} // namespace

Answer word(std::uint64_t value)
{
    return {.word = value};
}
Answer pointer(const void *value)
{
    return {.word = reinterpret_cast<std::uint64_t>(value)};
}
Answer real(double value)
{
    return {.real = value};
}
Method answers(Answer answer)
{
    return [answer](const std::uint64_t *) { return answer; };
}

Thing *thing(std::string name, std::map<std::string, Method> methods, const void *itsClass)
{
    static std::vector<std::unique_ptr<Thing>> all;
    all.push_back(std::make_unique<Thing>(Thing{std::move(name), std::move(methods), itsClass, {}}));
    return all.back().get();
}

Thing *string(std::string utf8)
{
    auto *made = thing(std::move(utf8));
    made->methods["UTF8String"] = answers(pointer(made->name.c_str()));
    return made;
}

Thing *array(std::vector<const void *> elements)
{
    auto *made = thing("array");
    made->elements = std::move(elements);
    made->methods["countByEnumeratingWithState:objects:count:"] = [made](const std::uint64_t *arguments) {
        return enumerate(*made, arguments);
    };
    return made;
}

std::string literal(std::uint64_t argument)
{
    const auto *constant = reinterpret_cast<const std::uint64_t *>(argument);
    return {reinterpret_cast<const char *>(constant[2]), constant[3]};
}

Thing &classNamed(const void *symbol, const char *name)
{
    classes()[symbol].name = name;
    return classes()[symbol];
}

} // namespace standin::objc

using namespace standin::objc;

extern "C" {

Answer objc_msgSend(void *self, const char *selector, std::uint64_t a, std::uint64_t b, std::uint64_t c,
                    std::uint64_t d)
{
    if (!self)
        return {};
    const auto known = classes().find(self);
    Thing &receiver = known == classes().end() ? *static_cast<Thing *>(self) : known->second;
    if (std::strcmp(selector, "class") == 0)
        return pointer(self);
    if (std::strcmp(selector, "isKindOfClass:") == 0)
        return word(pointer(receiver.itsClass).word == a);
    const auto method = receiver.methods.find(selector);
    if (method == receiver.methods.end()) {
        unanswered.push_back(receiver.name + " " + selector);
        return {};
    }
    const std::uint64_t arguments[] = {a, b, c, d};
    return method->second(arguments);
}
void objc_msgSend_stret(void *out, void *, const char *selector)
{
    std::memcpy(out, structures.at(selector).data(), structures.at(selector).size());
}
int __isPlatformVersionAtLeast(unsigned, unsigned major, unsigned, unsigned)
{
    return standin::objc::system >= int(major);
}

void *objc_alloc_init(void *self)
{
    return reinterpret_cast<void *>(objc_msgSend(self, "new", 0, 0, 0, 0).word);
}

void *objc_retain(void *object)
{
    return object;
}
void *objc_autorelease(void *object)
{
    return object;
}
void *objc_retainAutorelease(void *object)
{
    return object;
}
void *objc_retainAutoreleasedReturnValue(void *object)
{
    return object;
}
void *objc_retainAutoreleaseReturnValue(void *object)
{
    return object;
}
void *objc_unsafeClaimAutoreleasedReturnValue(void *object)
{
    return object;
}
void *objc_autoreleaseReturnValue(void *object)
{
    return object;
}
void *objc_retainBlock(void *block)
{
    return block;
}
void objc_release(void *) {}
void objc_storeStrong(void **place, void *value)
{
    *place = value;
}
void objc_enumerationMutation(void *) {}
void *objc_autoreleasePoolPush()
{
    return nullptr;
}
void objc_autoreleasePoolPop(void *) {}
}
