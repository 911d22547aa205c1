// SPDX-License-Identifier: MIT
#include "Model/RootModel.h"

#include "Desktop/StandardFolders.h"
#include "Model/Volume.h"

#include <cassert>
#include <optional>
#include <utility>

namespace tessera {

namespace {

std::optional<RootModelServices>& sharedServices()
{
    static std::optional<RootModelServices> services;
    return services;
}

} // namespace

RootModel::RootModel(const RootModelServices& services)
    : m_recents(services.defaults, services.recentDocuments)
{
    loadNonSystemFolders(services.standardFolders);
}

void RootModel::setServices(const RootModelServices& services)
{
    sharedServices().emplace(services);
}

RootModel& RootModel::sharedInstance()
{
    assert(sharedServices().has_value());
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): lives as long as the process
    static auto& instance = *new RootModel(sharedServices().value());
    return instance;
}

void RootModel::setTopFolder(std::unique_ptr<TopFolder> topFolder)
{
    m_topFolder = std::move(topFolder);
    applyPictureFilter();
}

void RootModel::applyPictureFilter()
{
    if (const auto* volume = nodeCast<Volume>(m_topFolder.get())) {
        volume->freeFile().setIgnored(m_pictureFilter.ignoreFreeSpace());
        volume->unreadFile().setIgnored(m_pictureFilter.ignoreRestrictedFiles());
    }
}

void RootModel::loadNonSystemFolders(const StandardFolders& folders)
{
    m_nonSystemFolders.push_back(folders.localApplications().absoluteString());
    m_nonSystemFolders.push_back(folders.localUsers().absoluteString());
    m_nonSystemFolders.emplace_back("file:///Volumes/");
}

} // namespace tessera
