/// The material library, and what the constants block gives to members and elements.
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"
#include "staad/writer/normalised/written_numbers.h"

#include <cmath>
#include <string>
#include <string_view>

namespace STAAD {
namespace {

// The library is the same in every file except for one density. C1 is a concrete without weight.
constexpr std::string_view before_concrete_density = "DEFINE MATERIAL START\n"
                                                     "ISOTROPIC STEEL\n"
                                                     "E 1.99947e+008\n"
                                                     "POISSON 0.3\n"
                                                     "DENSITY 76.8191\n"
                                                     "ALPHA 6e-006\n"
                                                     "DAMP 0.03\n"
                                                     "ISOTROPIC C1\n"
                                                     "E 2.17185e+007\n"
                                                     "POISSON 0.17\n"
                                                     "DENSITY 0\n"
                                                     "ALPHA 1e-005\n"
                                                     "DAMP 0.05\n"
                                                     "ISOTROPIC CONCRETE\n"
                                                     "E 2.17184e+007\n"
                                                     "POISSON 0.17\n"
                                                     "DENSITY ";
constexpr std::string_view after_concrete_density = "\n"
                                                    "ALPHA 5.5e-006\n"
                                                    "DAMP 0.05\n"
                                                    "ISOTROPIC STAINLESSSTEEL\n"
                                                    "E 1.93052e+008\n"
                                                    "POISSON 0.3\n"
                                                    "DENSITY 78.4477\n"
                                                    "ALPHA 9.9e-006\n"
                                                    "DAMP 0.03\n"
                                                    "ISOTROPIC ALUMINUM\n"
                                                    "E 6.89473e+007\n"
                                                    "POISSON 0.33\n"
                                                    "DENSITY 26.6017\n"
                                                    "ALPHA 1.28e-005\n"
                                                    "DAMP 0.03\n"
                                                    "END DEFINE MATERIAL\n";

constexpr double smallest_beta = 0.001;

} // namespace

void SdReader::write_std_material(detail::text_output& out) const
{
    out.put(before_concrete_density, detail::real{concrete_density}, after_concrete_density);
}

void SdReader::write_std_mat_table(detail::text_output& out, const detail::written_numbers& numbers) const
{
    out.line("CONSTANTS");
    write_std_beta(out, numbers);
    detail::id_groups<std::string_view> by_material;
    for (const SdBeam& member : beams)
        by_material.at(member.material).push_back(numbers.of(member));
    for (const SdShell& shell : shells)
        by_material.at(shell.material).push_back(numbers.of(shell));

    const auto materials = by_material.ascending();
    if (materials.size() == 1) {
        out.line("MATERIAL ", materials.front()->first, " ALL");
        return;
    }
    for (const auto* material : materials) {
        const std::string head = "MATERIAL " + std::string(material->first) + " MEMB";
        detail::put_run_list(out, head, material->second, {});
        out.put('\n');
    }
}

void SdReader::write_std_beta(detail::text_output& out, const detail::written_numbers& numbers) const
{
    detail::id_groups<double> by_beta;
    for (const SdBeam& member : beams) {
        if (std::abs(member.beta) >= smallest_beta)
            by_beta.at(member.beta).push_back(numbers.of(member));
    }
    for (const auto* members : by_beta.ascending()) {
        const std::string head = "BETA " + detail::format_real(members->first) + " MEMB";
        detail::put_run_list(out, head, members->second, {});
        out.put('\n');
    }
}

} // namespace STAAD
