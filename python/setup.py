"""The wheel: for any Python, for the platform of the libraries that make-wheel has put into the package."""
import os
from pathlib import Path

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel

package = Path(__file__).with_name("rankermodule")
windows = any(package.glob("*.dll"))
if not windows and not any(package.glob("*.so.*")):
    raise SystemExit("the libraries are missing; python/make-wheel BUILD-FOLDER OUT makes a wheel")


class WithLibraries(Distribution):
    def has_ext_modules(self):
        return True  # so that it is installed among what belongs to one platform


class AnyPython(bdist_wheel):
    def get_tag(self):
        platform = super().get_tag()[2]
        return "py3", "none", "win_amd64" if windows else platform


setup(version=os.environ["RANKER_VERSION"], distclass=WithLibraries, cmdclass={"bdist_wheel": AnyPython})
