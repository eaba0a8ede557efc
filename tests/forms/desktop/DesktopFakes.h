#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/Copies.h"

#include <deque>
#include <map>
#include <vector>

namespace vypx::test {

/// This copy: takes one file while it is free.
class FakeTaker : public FileTaker {
public:
    bool IsFree() const override { return isFree; }
    bool Take(const OutsideFile& file) override
    {
        if (!isFree)
            return false;
        isFree = false;
        taken.push_back(file);
        return true;
    }
    void Tell(const QString& text) override { told << text; }
    void ComeUp(const Activation& activation) override { cameUp.push_back(activation); }

    bool isFree = true;
    std::vector<OutsideFile> taken;
    QStringList told;
    std::vector<Activation> cameUp;
};

/// Other copies that answer when the test says so (RunOne, RunAll).
class FakeCopies : public Copies {
public:
    enum class Kind {
        Free,
        HasDocument,
        Hangs,       ///< never answers: the time limit says no
        NeverTakes,  ///< is free when it is asked and hangs when it is given the file
        RefusesLate, ///< is free when it is asked and no more when it is given the file
    };

    void List(std::function<void(QStringList)> done) override
    {
        Later([this, done] {
            QStringList names;
            for (const auto& [name, kind] : copies)
                names << name;
            done(names);
        });
    }
    void Ask(const QString& copy, std::function<void(bool)> done) override
    {
        Later([this, copy, done] {
            asked << copy;
            done(copies[copy] != Kind::HasDocument && copies[copy] != Kind::Hangs);
        });
    }
    void Give(const QString& copy, const OutsideFile& file, std::function<void(bool)> done) override
    {
        Later([this, copy, file, done] {
            if (copies[copy] == Kind::NeverTakes)
                return;
            const bool takes = copies[copy] == Kind::Free;
            if (takes) {
                files[copy] << file.path;
                copies[copy] = Kind::HasDocument;
            }
            done(takes);
        });
    }
    void StartFor(const OutsideFile& file, std::function<void()> sent,
        std::function<void(Started)> done) override
    {
        ++starting;
        mostStarting = std::max(mostStarting, starting);
        Later([this, file, sent, done] {
            --starting;
            ++started;
            sent();
            if (startedHang)
                return;
            Started result = Started::Took;
            if (!startsEndSo.empty()) {
                result = startsEndSo.front();
                startsEndSo.pop_front();
            }
            if (result == Started::Took) {
                const QString name = QString("started %1").arg(started, 3, 10, QChar('0'));
                files[name] << file.path;
                copies[name] = Kind::HasDocument;
            }
            done(result);
        });
    }
    void Start(const Activation& activation, std::function<void(bool)> done) override
    {
        startedEmpty.push_back(activation);
        done(canStart);
    }

    void RunOne()
    {
        const auto act = m_later.front();
        m_later.pop_front();
        act();
    }
    void RunAll()
    {
        while (!m_later.empty())
            RunOne();
    }
    /// What all other copies have been given.
    QStringList AllFiles() const
    {
        QStringList all;
        for (const auto& [name, given] : files)
            all << given;
        all.sort();
        return all;
    }

    std::map<QString, Kind> copies;
    std::map<QString, QStringList> files; // by copy
    std::deque<Started> startsEndSo;      // the next ones; then they take their file
    bool canStart = true, startedHang = false;
    int started = 0, starting = 0, mostStarting = 0;
    QStringList asked;
    std::vector<Activation> startedEmpty;

private:
    void Later(std::function<void()> act) { m_later.push_back(std::move(act)); }

    std::deque<std::function<void()>> m_later;
};

} // namespace vypx::test
