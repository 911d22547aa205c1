// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include "Platform/Linux/Preview/ChildRasterDecoder.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace tessera::test {

namespace {

constexpr int kRefused = 3; // the archiver's own status when it has made nothing

/// As from a disk that turns.
class SlowEnumerator final : public DirectoryEnumerator {
public:
    explicit SlowEnumerator(std::unique_ptr<DirectoryEnumerator> items)
        : m_items(std::move(items))
    {
    }

    bool next(DirectoryItem& item) override
    {
        if (++m_count % kItemsPerMillisecond == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        return m_items->next(item);
    }
    void skipDescendants() override { m_items->skipDescendants(); }
    const EnteredDirectory* entered() const override { return m_items->entered(); }

private:
    static constexpr int kItemsPerMillisecond = 10;

    const std::unique_ptr<DirectoryEnumerator> m_items;
    int m_count = 0;
};

class SlowFileManager final : public FileManager {
public:
    explicit SlowFileManager(std::unique_ptr<FileManager> files)
        : m_files(std::move(files))
    {
    }

    std::unique_ptr<DirectoryEnumerator> enumerator(
        const std::string& path, ItemKeys keys, LinksToStart links) const override
    {
        return std::make_unique<SlowEnumerator>(m_files->enumerator(path, keys, links));
    }

    std::string pathWithoutLinks(const std::string& path) const override
    {
        return m_files->pathWithoutLinks(path);
    }

private:
    const std::unique_ptr<FileManager> m_files;
};

class ConfinedWorkspace final : public Workspace {
public:
    ConfinedWorkspace(std::unique_ptr<Workspace> workspace, Sandbox sandbox, OpenWork& work)
        : m_workspace(std::move(workspace))
        , m_sandbox(std::move(sandbox))
        , m_work(work)
    {
    }

    void openUrl(const std::string& absoluteUrl, OpenCompletion completionHandler) override
    {
        m_workspace->openUrl(absoluteUrl, std::move(completionHandler));
    }
    void reveal(const Url& item, OpenCompletion completionHandler) override
    {
        m_workspace->reveal(item, std::move(completionHandler));
    }

    void recycleURLs(std::vector<ItemToRecycle> items, RecycleCompletion completionHandler) override
    {
        std::vector<Url> urls;
        urls.reserve(items.size());
        for (ItemToRecycle& item : items) {
            urls.push_back(std::move(item.url));
        }
        urls = confined(std::move(urls));
        m_workspace->recycleURLs({urls.begin(), urls.end()}, begin(std::move(completionHandler)));
    }

    void putBack(PutBackRequest request, PutBackCompletion completionHandler) override
    {
        if (!m_sandbox.holds(request.item.from.path())) {
            request.item.identity = {}; // of no item
        }
        m_workspace->putBack(std::move(request), std::move(completionHandler));
    }

    void recycleFile(
        const FileIdentity& file,
        std::vector<Url> places,
        RecycleCompletion completionHandler) override
    {
        const auto finish = begin(std::move(completionHandler));
        m_workspace->recycleFile(file, confined(std::move(places)), finish);
    }

private:
    RecycleCompletion begin(RecycleCompletion completionHandler)
    {
        ++m_work.moves;
        ++m_work.movesBegun;
        return [this, completion = std::move(completionHandler)](const RecycleResult& result) {
            --m_work.moves;
            completion(result);
        };
    }

    std::vector<Url> confined(std::vector<Url> urls) const
    {
        const bool isInside = std::ranges::all_of(
            urls, [this](const Url& url) { return m_sandbox.holds(url.path()); });
        // Nothing at all is an error that comes as late as any other.
        return isInside ? std::move(urls) : std::vector{Url(m_sandbox.path() + "/nothing", false)};
    }

    const std::unique_ptr<Workspace> m_workspace;
    const Sandbox m_sandbox;
    OpenWork& m_work;
};

class ConfinedTask final : public Task {
public:
    ConfinedTask(std::unique_ptr<Task> task, Sandbox sandbox, OpenWork& work)
        : m_task(std::move(task))
        , m_sandbox(std::move(sandbox))
        , m_work(work)
    {
        ++m_work.archives;
        ++m_work.archivesBegun;
    }
    ConfinedTask(const ConfinedTask&) = delete;
    ConfinedTask& operator=(const ConfinedTask&) = delete;
    ~ConfinedTask() override { --m_work.archives; }

    void start(
        const std::string& program,
        const std::vector<std::string>& arguments,
        TerminationHandler onTerminated) override
    {
        if (m_sandbox.holds(arguments.back())) {
            m_task->start(program, arguments, std::move(onTerminated));
        } else {
            m_task->start("/bin/false", {}, [onTerminated = std::move(onTerminated)](int /*one*/) {
                onTerminated(kRefused);
            });
        }
    }
    void terminate() override { m_task->terminate(); }
    void stop() override { m_task->stop(); }
    [[nodiscard]] std::string output() const override { return m_task->output(); }

private:
    const std::unique_ptr<Task> m_task;
    const Sandbox m_sandbox;
    OpenWork& m_work;
};

class ConfinedVolumes final : public MountedVolumes {
public:
    ConfinedVolumes(std::unique_ptr<MountedVolumes> volumes, Sandbox sandbox)
        : m_volumes(std::move(volumes))
        , m_sandbox(std::move(sandbox))
    {
    }

    std::vector<MountedVolume> mountedVolumes() const override
    {
        return {{Url(m_sandbox.volume(), true)}, {Url(m_sandbox.disk(), true)}};
    }
    std::optional<MountedVolume> volumeAt(const std::string& path) const override
    {
        return m_volumes->volumeAt(path);
    }

private:
    const std::unique_ptr<MountedVolumes> m_volumes;
    const Sandbox m_sandbox;
};

class ConfinedUser final : public UserAccount {
public:
    explicit ConfinedUser(std::string home)
        : m_home(std::move(home))
    {
    }

    std::optional<PasswordEntry> realUser() const override { return PasswordEntry{"soak", m_home}; }
    std::string homeDirectory() const override { return m_home; }
    std::uint32_t userNumber() const override { return 0; }

private:
    const std::string m_home;
};

/// Starts nothing of what is installed here.
class NoPrograms final : public OtherPrograms {
public:
    explicit NoPrograms(MainThread& mainThread)
        : m_mainThread(mainThread)
    {
    }

    void open(const Url& /*item*/, Completion completion) override
    {
        refuse(std::move(completion));
    }
    void findPrograms(const Url& /*item*/, ProgramsCompletion completion) override
    {
        m_mainThread.perform([completion = std::move(completion)] {
            completion(HandOver::Done, {{"soak", "Soak"}});
        });
    }
    void openWith(const Url& /*item*/, const std::string& /*id*/, Completion completion) override
    {
        refuse(std::move(completion));
    }
    void openTerminal(const Url& /*folder*/, Completion completion) override
    {
        refuse(std::move(completion));
    }
    void showProperties(const Url& /*item*/, Completion completion) override
    {
        refuse(std::move(completion));
    }

private:
    void refuse(Completion completion)
    {
        m_mainThread.perform(
            [completion = std::move(completion)] { completion(HandOver::NoProgram); });
    }

    MainThread& m_mainThread;
};

} // namespace

Sandbox::Sandbox(std::string path)
    : m_path(std::move(path))
{
}

void confine(PlatformServices& services, const Sandbox& sandbox, OpenWork& work)
{
    services.fileManager = std::make_unique<SlowFileManager>(std::move(services.fileManager));
    services.workspace
        = std::make_unique<ConfinedWorkspace>(std::move(services.workspace), sandbox, work);
    services.otherPrograms = std::make_unique<NoPrograms>(*services.mainThread);
    services.makeTask = [makeTask = services.makeTask, sandbox, &work] {
        return std::make_unique<ConfinedTask>(makeTask(), sandbox, work);
    };
    services.mountedVolumes
        = std::make_unique<ConfinedVolumes>(std::move(services.mountedVolumes), sandbox);
    services.userAccount = std::make_unique<ConfinedUser>(sandbox.home());
    services.archiver = sandbox.archiver();
    services.rasterDecoder = std::make_shared<ChildRasterDecoder>(sandbox.previewer());
}

} // namespace tessera::test
