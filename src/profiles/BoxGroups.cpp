#include "profiles/BoxGroups.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "profiles/OmrsOfBoxes.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

constexpr std::string_view kBlanks = " _\t";

constexpr std::pair<Takes, const char*> kTakes[] = {
    {Takes::One, "one"}, {Takes::AnyNumber, "any"}, {Takes::AtLeastOne, "least"}};

const char* WordOf(Takes takes) {
    return std::ranges::find(kTakes, takes, &std::pair<Takes, const char*>::first)->second;
}

Takes TakesOf(std::string_view word) {
    for (const auto& [takes, name] : kTakes)
        if (word == name)
            return takes;
    throw DocumentError("a group takes \"" + std::string(word) + "\", which is none of one, any and least");
}

struct SplitName {
    const std::string* name;
    std::vector<std::string_view> words;
};

using Names = std::vector<SplitName>;

std::vector<std::string_view> WordsOf(std::string_view name) {
    std::vector<std::string_view> words;
    for (std::size_t start = name.find_first_not_of(kBlanks); start != std::string_view::npos;) {
        const std::size_t end = std::min(name.find_first_of(kBlanks, start), name.size());
        words.push_back(name.substr(start, end - start));
        start = name.find_first_not_of(kBlanks, end);
    }
    return words;
}

// By the word at `index`, in the order of its first appearance.
std::vector<Names> PartedAt(std::size_t index, const Names& names) {
    std::vector<Names> parts;
    for (const SplitName& name : names) {
        const auto same = std::ranges::find_if(
            parts, [&](const Names& part) { return part.front().words[index] == name.words[index]; });
        (same == parts.end() ? parts.emplace_back() : *same).push_back(name);
    }
    return parts;
}

// Whether a word stands at `index` of every name, and another one behind it.
bool AllGoOnBehind(std::size_t index, const Names& names) {
    return std::ranges::all_of(names, [=](const SplitName& name) { return name.words.size() > index + 1; });
}

// "Question 1 yes": answers begin with a number, too ("Age 40 to 64"), but then stand alone with it.
bool AreNumberedQuestions(std::size_t index, const std::vector<Names>& parts) {
    return std::ranges::all_of(parts, [=](const Names& part) {
        return part.size() > 1 &&
               part.front().words[index].find_first_of("0123456789") != std::string_view::npos;
    });
}

BoxGroup GroupOf(const Names& names, std::size_t shared) {
    const std::string& first = *names.front().name;
    const std::string_view last = names.front().words[shared - 1];
    const auto end = static_cast<std::size_t>(last.data() + last.size() - first.data());
    BoxGroup group;
    group.Name = first.substr(0, end);
    // "Q1: yes" answers Q1.
    group.Name.erase(std::min(group.Name.find_last_not_of(":.-") + 1, group.Name.size()));
    if (group.Name.empty())
        group.Name = first.substr(0, end);
    for (const SplitName& name : names)
        group.Boxes.push_back(*name.name);
    return group;
}

// `names` share their first `shared` words.
void AddGroups(std::vector<BoxGroup>& groups, const Names& names, std::size_t shared) {
    if (names.size() < 2)
        return;
    if (AllGoOnBehind(shared, names)) {
        const std::vector<Names> parts = PartedAt(shared, names);
        if (parts.size() == 1 || AreNumberedQuestions(shared, parts)) {
            for (const Names& part : parts)
                AddGroups(groups, part, shared + 1);
            return;
        }
    }
    groups.push_back(GroupOf(names, shared));
}

}  // namespace

std::string BoxGroupsPath(const std::string& profilePath) {
    return profilePath.substr(0, profilePath.size() - app::FileName(profilePath).size()) +
           app::BaseName(profilePath) + ".groups.xml";
}

std::optional<std::vector<BoxGroup>> ReadBoxGroups(const app::Files& files, const std::string& profilePath) {
    const std::string path = BoxGroupsPath(profilePath);
    if (!files.FileExists(path))
        return std::nullopt;
    const pugi::xml_document document = ReadXml(files, path, Declaration::Allowed);
    if (document.document_element().name() != std::string_view("BoxGroups"))
        throw DocumentError("the root element is no BoxGroups");
    std::vector<BoxGroup> groups;
    for (const pugi::xml_node element : document.document_element().children("Group")) {
        BoxGroup group{element.attribute("Name").value(), {}, TakesOf(element.attribute("Takes").value())};
        for (const pugi::xml_node box : element.children("Box"))
            group.Boxes.emplace_back(box.attribute("Name").value());
        groups.push_back(std::move(group));
    }
    return groups;
}

void WriteBoxGroups(app::Files& files, const std::string& profilePath, std::span<const BoxGroup> groups) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("BoxGroups");
    for (const BoxGroup& group : groups) {
        pugi::xml_node element = root.append_child("Group");
        element.append_attribute("Name") = XmlText(group.Name).c_str();
        element.append_attribute("Takes") = WordOf(group.Marks);
        for (const std::string& box : group.Boxes)
            element.append_child("Box").append_attribute("Name") = XmlText(box).c_str();
    }
    WriteXml(files, BoxGroupsPath(profilePath), document, XmlLayout::Indented);
}

void DeleteBoxGroups(app::Files& files, const std::string& profilePath) {
    if (const std::string path = BoxGroupsPath(profilePath); files.FileExists(path))
        files.Delete(path);
}

std::vector<BoxGroup> GroupsByName(std::span<const std::string> names) {
    Names split;
    for (const std::string& name : names)
        if (SplitName words{&name, WordsOf(name)}; words.words.size() > 1 && !IsUnnamed(name))
            split.push_back(std::move(words));
    std::vector<BoxGroup> groups;
    for (const Names& part : PartedAt(0, split))
        AddGroups(groups, part, 1);
    return groups;
}

std::vector<BoxGroup> GroupsOf(const app::Files& files, const std::string& profilePath,
                               std::span<const std::string> names) {
    std::optional<std::vector<BoxGroup>> groups = ReadBoxGroups(files, profilePath);
    return groups ? *std::move(groups) : GroupsByName(names);
}

}  // namespace tavrene::profiles
